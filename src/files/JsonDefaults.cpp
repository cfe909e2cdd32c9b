#include "files/JsonDefaults.h"

#include "files/AtomicFile.h"
#include "files/RegularFile.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <variant>

#include <QJsonDocument>

namespace vantrell {

namespace {

constexpr QLatin1StringView dateTag("date");
constexpr std::uintmax_t mostBytes = std::uintmax_t{16} << 20U;

/// A name next to `file` that nothing has yet, so that an earlier damaged file is kept as well.
std::filesystem::path freeNameBeside(const std::filesystem::path& file) {
    std::error_code failed;
    auto name = file;
    name += ".damaged";
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(name, failed)); ++number) {
        name = file;
        name += ".damaged-" + std::to_string(number);
    }
    return name;
}

}  // namespace

JsonDefaults::JsonDefaults(std::filesystem::path file) : file_(std::move(file)) {
    read();
}

// What came last may have found a full disk, and room since.
JsonDefaults::~JsonDefaults() {
    std::ignore = saveAll();
}

void JsonDefaults::read() {
    const auto read = readRegularFile(file_, mostBytes);
    const auto* bytes = std::get_if<std::string>(&read);
    if (bytes == nullptr && std::get<FileReadError>(read).isMissing) {
        return;
    }
    const auto document =
        bytes == nullptr ? QJsonDocument() : QJsonDocument::fromJson(QByteArray::fromStdString(*bytes));
    damaged_ = !document.isObject();
    values_ = document.object();
    saved_ = values_;
}

std::optional<std::string> JsonDefaults::text(std::string_view key) const {
    const auto value = values_.value(QString::fromUtf8(key));
    return value.isString() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

std::optional<Instant> JsonDefaults::date(std::string_view key) const {
    const auto tagged = values_.value(QString::fromUtf8(key)).toObject();
    const auto value = tagged.value(dateTag);
    // What is no whole number gives back whatever it is asked to.
    if (tagged.size() != 1 || value.toInteger(0) != value.toInteger(1)) {
        return std::nullopt;
    }
    return Instant(std::chrono::microseconds(value.toInteger()));
}

std::optional<bool> JsonDefaults::flag(std::string_view key) const {
    const auto value = values_.value(QString::fromUtf8(key));
    return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<TextMap> JsonDefaults::textMap(std::string_view key) const {
    const auto value = values_.value(QString::fromUtf8(key));
    const auto members = value.toObject();
    const bool allTexts =
        std::ranges::all_of(members, [](const QJsonValue& member) { return member.isString(); });
    if (!value.isObject() || !allTexts) {
        return std::nullopt;
    }
    TextMap texts;
    for (auto member = members.begin(); member != members.end(); ++member) {
        texts.emplace(member.key().toStdString(), member->toString().toStdString());
    }
    return texts;
}

void JsonDefaults::setText(std::string_view key, std::string_view value) {
    set(key, QString::fromUtf8(value));
}

void JsonDefaults::setDate(std::string_view key, Instant value) {
    set(key, QJsonObject{{dateTag, qint64{value.time_since_epoch().count()}}});
}

void JsonDefaults::setFlag(std::string_view key, bool value) {
    set(key, value);
}

void JsonDefaults::setTextMap(std::string_view key, const TextMap& value) {
    QJsonObject members;
    for (const auto& [name, text] : value) {
        members.insert(QString::fromStdString(name), QString::fromStdString(text));
    }
    set(key, members);
}

void JsonDefaults::remove(std::string_view key) {
    values_.remove(QString::fromUtf8(key));
    // What isn't saved is kept and tried again; the last save tells.
    std::ignore = saveAll();
}

void JsonDefaults::set(std::string_view key, const QJsonValue& value) {
    values_.insert(QString::fromUtf8(key), value);
    // As above.
    std::ignore = saveAll();
}

std::optional<std::string> JsonDefaults::saveAll() {
    if (values_ == saved_) {
        return std::nullopt;
    }
    auto problem = setDamagedFileAside();
    if (!problem) {
        problem = writeAtomically(file_, QJsonDocument(values_).toJson().toStdString(), Readers::ownerOnly);
    }
    if (!problem) {
        saved_ = values_;
    }
    return problem;
}

std::optional<std::string> JsonDefaults::setDamagedFileAside() {
    std::error_code failed;
    if (damaged_) {
        std::filesystem::rename(file_, freeNameBeside(file_), failed);
        damaged_ = static_cast<bool>(failed);
    }
    return failed ? std::optional(file_.string() + ": " + failed.message()) : std::nullopt;
}

}  // namespace vantrell
