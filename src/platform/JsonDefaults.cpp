#include "platform/JsonDefaults.h"

#include <algorithm>
#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace vantrell {

namespace {

constexpr QLatin1StringView dateTag("date");
constexpr QFile::Permissions ownerOnlyFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions ownerOnlyFolder = ownerOnlyFile | QFile::ExeOwner;

QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString toQt(const std::filesystem::path& path) {
    return QFile::decodeName(path.c_str());
}

bool makeFolder(const QString& path) {
    const QDir folder(path);
    if (folder.exists()) {
        return true;
    }
    // The folders above may be shared with other programs and get the usual permissions.
    return QDir().mkpath(QFileInfo(path).path()) && QDir().mkdir(path, ownerOnlyFolder);
}

/// A name next to `file` that nothing has yet, so that an earlier damaged file is kept as well.
QString freeNameBeside(const QString& file) {
    auto name = file + QLatin1StringView(".damaged");
    for (int number = 2; QFileInfo::exists(name); ++number) {
        name = file + QLatin1StringView(".damaged-") + QString::number(number);
    }
    return name;
}

}  // namespace

JsonDefaults::JsonDefaults(std::filesystem::path file) : file_(std::move(file)) {
    read();
}

void JsonDefaults::read() {
    QFile file(toQt(file_));
    if (!file.exists()) {
        return;
    }
    const auto document =
        file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()) : QJsonDocument();
    damaged_ = !document.isObject();
    values_ = document.object();
    saved_ = values_;
}

std::optional<std::string> JsonDefaults::text(std::string_view key) const {
    const auto value = values_.value(toQt(key));
    return value.isString() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

std::optional<Instant> JsonDefaults::date(std::string_view key) const {
    const auto tagged = values_.value(toQt(key)).toObject();
    const auto value = tagged.value(dateTag);
    // What is no whole number gives back whatever it is asked to.
    if (tagged.size() != 1 || value.toInteger(0) != value.toInteger(1)) {
        return std::nullopt;
    }
    return Instant(std::chrono::microseconds(value.toInteger()));
}

std::optional<bool> JsonDefaults::flag(std::string_view key) const {
    const auto value = values_.value(toQt(key));
    return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<TextMap> JsonDefaults::textMap(std::string_view key) const {
    const auto value = values_.value(toQt(key));
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
    set(key, toQt(value));
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
    values_.remove(toQt(key));
    saveIfChanged();
}

void JsonDefaults::set(std::string_view key, const QJsonValue& value) {
    values_.insert(toQt(key), value);
    saveIfChanged();
}

void JsonDefaults::saveIfChanged() {
    if (values_ == saved_) {
        return;
    }
    if (setDamagedFileAside() && save()) {
        saved_ = values_;
    }
}

bool JsonDefaults::setDamagedFileAside() {
    if (damaged_) {
        const auto name = toQt(file_);
        damaged_ = !QFile::rename(name, freeNameBeside(name));
    }
    return !damaged_;
}

bool JsonDefaults::save() const {
    const auto name = toQt(file_);
    if (!makeFolder(QFileInfo(name).path())) {
        return false;
    }
    QSaveFile file(name);
    const auto bytes = QJsonDocument(values_).toJson();
    // The permissions come first: nothing is written while others could read it.
    return file.open(QIODevice::WriteOnly) && file.setPermissions(ownerOnlyFile) &&
           file.write(bytes) == bytes.size() && file.commit();
}

}  // namespace vantrell
