#pragma once

#include "files/Defaults.h"

#include <filesystem>

#include <QJsonObject>

namespace vantrell {

/// Keeps the settings in one JSON file, a single object with a member per key:
///
///     {"displayCurrency": "EUR", "lastAutoSyncAt": {"date": 1795348800000000}, "someFlag": true}
///
/// A date is an object of one member, the microseconds since 1970 in UTC, so that no text can be taken for
/// one; texts by text are an object of texts. What the program doesn't know stays in the file. A file that
/// can't be read or understood counts as empty, and is renamed to "<name>.damaged" before the first save. A
/// save that fails keeps the values in memory and is tried again with the next write, and at the end.
class JsonDefaults final : public Defaults {
  public:
    /// Reads `file` once. File and folder need not exist; they are made, for the user alone, by the first
    /// save.
    explicit JsonDefaults(std::filesystem::path file);
    ~JsonDefaults() override;
    JsonDefaults(const JsonDefaults&) = delete;
    JsonDefaults& operator=(const JsonDefaults&) = delete;

    /// Saves what could not be saved so far. Absent if that is done, else what still stands in the way, for
    /// the user.
    [[nodiscard]] std::optional<std::string> saveAll();

    [[nodiscard]] std::optional<std::string> text(std::string_view key) const override;
    [[nodiscard]] std::optional<Instant> date(std::string_view key) const override;
    [[nodiscard]] std::optional<bool> flag(std::string_view key) const override;
    [[nodiscard]] std::optional<TextMap> textMap(std::string_view key) const override;

    void setText(std::string_view key, std::string_view value) override;
    void setDate(std::string_view key, Instant value) override;
    void setFlag(std::string_view key, bool value) override;
    void setTextMap(std::string_view key, const TextMap& value) override;
    void remove(std::string_view key) override;

  private:
    void read();
    void set(std::string_view key, const QJsonValue& value);
    [[nodiscard]] std::optional<std::string> setDamagedFileAside();

    std::filesystem::path file_;
    QJsonObject values_;
    QJsonObject saved_;
    bool damaged_ = false;
};

}  // namespace vantrell
