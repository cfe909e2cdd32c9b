#pragma once

#include "files/Defaults.h"

#include <map>
#include <variant>

namespace vantrell::testing {

/// Settings that last as long as the test, and a count of the writes.
class MemoryDefaults final : public Defaults {
  public:
    [[nodiscard]] std::optional<std::string> text(std::string_view key) const override {
        return value<std::string>(key);
    }
    [[nodiscard]] std::optional<Instant> date(std::string_view key) const override {
        return value<Instant>(key);
    }
    [[nodiscard]] std::optional<bool> flag(std::string_view key) const override { return value<bool>(key); }
    [[nodiscard]] std::optional<TextMap> textMap(std::string_view key) const override {
        return value<TextMap>(key);
    }

    void setText(std::string_view key, std::string_view text) override { set(key, std::string(text)); }
    void setDate(std::string_view key, Instant date) override { set(key, date); }
    void setFlag(std::string_view key, bool flag) override { set(key, flag); }
    void setTextMap(std::string_view key, const TextMap& texts) override { set(key, texts); }
    void remove(std::string_view key) override { values_.erase(std::string(key)); }

    int writes = 0;

  private:
    using Value = std::variant<std::string, Instant, bool, TextMap>;

    template <typename Type>
    [[nodiscard]] std::optional<Type> value(std::string_view key) const {
        const auto known = values_.find(key);
        const Type* found = known == values_.end() ? nullptr : std::get_if<Type>(&known->second);
        return found == nullptr ? std::nullopt : std::optional(*found);
    }
    void set(std::string_view key, Value value) {
        ++writes;
        values_.insert_or_assign(std::string(key), std::move(value));
    }

    std::map<std::string, Value, std::less<>> values_;
};

}  // namespace vantrell::testing
