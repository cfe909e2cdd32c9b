#pragma once

#include "base/Instant.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// Texts by text, in ascending order of their keys.
using TextMap = std::map<std::string, std::string, std::less<>>;

/// The user's settings: a few typed values by key, which outlive the process. Reading a key under another
/// type than it was written with gives absent.
class Defaults {
  public:
    virtual ~Defaults() = default;

    [[nodiscard]] virtual std::optional<std::string> text(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<Instant> date(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<bool> flag(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<TextMap> textMap(std::string_view key) const = 0;

    virtual void setText(std::string_view key, std::string_view value) = 0;
    virtual void setDate(std::string_view key, Instant value) = 0;
    virtual void setFlag(std::string_view key, bool value) = 0;
    virtual void setTextMap(std::string_view key, const TextMap& value) = 0;
    virtual void remove(std::string_view key) = 0;
};

}  // namespace vantrell
