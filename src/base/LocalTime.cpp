#include "base/LocalTime.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <utility>

#include <QDateTime>
#include <QTimeZone>

namespace vantrell {
namespace {

using std::chrono::milliseconds;
using std::chrono::sys_days;

constexpr const char* zoneFile = "/etc/localtime";

constexpr const char* database = "/usr/share/zoneinfo";

/// The files of the system are newer than what any library brings along: rules change every year.
std::optional<QTimeZone> withHistory(std::string_view name) {
    const std::filesystem::path file = std::filesystem::path(database) / name;
    std::error_code failed;
    // A text that spells out rules would be taken as well.
    if (name.find("..") != std::string_view::npos || !std::filesystem::is_regular_file(file, failed)) {
        return std::nullopt;
    }
    QTimeZone zone(QByteArray(name.data(), static_cast<qsizetype>(name.size())));
    return zone.isValid() ? std::optional(std::move(zone)) : std::nullopt;
}

std::optional<std::string> variable(const char* name) {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

/// The rules at the end of a zone file, which hold from now on.
std::string rulesIn(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string magic(4, '\0');
    stream.read(magic.data(), 4);
    std::string line;
    std::string last;
    while (magic == "TZif" && std::getline(stream, line)) {
        last = line;
    }
    return last;
}

std::optional<QTimeZone> byRules(const std::string& rules) {
    QTimeZone zone(QByteArray::fromStdString(rules));
    return !rules.empty() && zone.isValid() ? std::optional(std::move(zone)) : std::nullopt;
}

/// The zone's name in a TZ setting: "Asia/Tokyo", ":Asia/Tokyo" and "/usr/share/zoneinfo/Asia/Tokyo" are one.
std::string_view nameIn(std::string_view setting) {
    for (const std::string_view marker : {":", "/zoneinfo/", "posix/", "right/"}) {
        const auto found = setting.find(marker);
        setting.remove_prefix(found == std::string_view::npos ? 0 : found + marker.size());
    }
    return setting;
}

QDateTime toDate(milliseconds time) {
    return QDateTime::fromMSecsSinceEpoch(time.count(), Qt::UTC);
}

}  // namespace

struct TimeZone::Zone {
    QTimeZone rules;

    [[nodiscard]] milliseconds offsetAt(milliseconds instant) const {
        return std::chrono::seconds(rules.offsetFromUtc(toDate(instant)));
    }
};

TimeZone::TimeZone(std::shared_ptr<const Zone> zone) : zone_(std::move(zone)) {}

std::optional<TimeZone> TimeZone::named(std::string_view id) {
    auto rules = withHistory(id);
    return rules ? std::optional(TimeZone(std::make_shared<const Zone>(Zone{*std::move(rules)})))
                 : std::nullopt;
}

/// Universal time for what is no such file; a pipe would be waited for.
TimeZone TimeZone::ofFile(const std::string& path) {
    std::error_code failed;
    QTimeZone rules = QTimeZone::utc();
    if (std::filesystem::is_regular_file(path, failed)) {
        if (auto zone = named(nameIn(std::filesystem::canonical(path, failed).string()))) {
            return *zone;
        }
        rules = byRules(rulesIn(path)).value_or(rules);
    }
    return TimeZone(std::make_shared<const Zone>(Zone{rules}));
}

TimeZone TimeZone::ofHost() {
    QTimeZone rules = QTimeZone::utc();
    if (const auto setting = variable("TZ")) {
        if (auto zone = named(nameIn(*setting))) {
            return *zone;
        }
        const std::string path = setting->substr(setting->starts_with(':') ? 1 : 0);
        if (path.starts_with('/')) {
            return ofFile(path);
        }
        tzset();
        rules = byRules(*setting).value_or(QTimeZone(static_cast<int>(-timezone)));
    } else if (const auto own = QTimeZone::systemTimeZone(); own.isValid()) {
        rules = own;
    }
    return TimeZone(std::make_shared<const Zone>(Zone{rules}));
}

std::string TimeZone::id() const {
    return zone_->rules.id().toStdString();
}

milliseconds TimeZone::offsetAt(Instant instant) const {
    return zone_->offsetAt(std::chrono::floor<milliseconds>(instant.time_since_epoch()));
}

CivilDate TimeZone::dateAt(Instant instant) const {
    const auto time = std::chrono::floor<milliseconds>(instant.time_since_epoch());
    const auto day = std::chrono::floor<std::chrono::days>(time + zone_->offsetAt(time));
    constexpr auto first = sys_days(std::chrono::year::min() / std::chrono::January / 1);
    constexpr auto last = sys_days(std::chrono::year::max() / std::chrono::December / 31);
    return std::clamp(sys_days(day), first, last);
}

Instant TimeZone::noonOf(CivilDate day) const {
    const milliseconds local = sys_days(day).time_since_epoch() + std::chrono::hours(12);
    // No change of the clocks is as long, so that one of the two holds wherever it isn't skipped.
    constexpr auto longestShift = std::chrono::hours(26);
    const auto before = zone_->offsetAt(local - longestShift);
    for (const auto offset : {before, zone_->offsetAt(local + longestShift)}) {
        if (zone_->offsetAt(local - offset) == offset) {
            return Instant(local - offset);
        }
    }
    const auto gap = zone_->rules.previousTransition(toDate(local - before + milliseconds(1))).atUtc;
    return Instant(milliseconds(gap.toMSecsSinceEpoch()));
}

/// What the machine's setting was when the zone was found.
struct HostLocalTime::Known {
    std::optional<std::string> variable;
    struct stat file {};
    std::optional<TimeZone> zone;

    [[nodiscard]] bool isOf(const std::optional<std::string>& nowVariable, const struct stat& nowFile) const {
        return zone && variable == nowVariable && file.st_dev == nowFile.st_dev &&
               file.st_ino == nowFile.st_ino && file.st_size == nowFile.st_size &&
               file.st_mtim.tv_sec == nowFile.st_mtim.tv_sec &&
               file.st_mtim.tv_nsec == nowFile.st_mtim.tv_nsec;
    }
};

HostLocalTime::HostLocalTime() : known_(std::make_unique<Known>()) {}
HostLocalTime::~HostLocalTime() = default;

TimeZone HostLocalTime::zone() const {
    auto setting = variable("TZ");
    struct stat file {};
    if (!setting && ::stat(zoneFile, &file) != 0) {
        file = {};
    }
    if (!known_->isOf(setting, file)) {
        *known_ = {std::move(setting), file, TimeZone::ofHost()};
    }
    return *known_->zone;
}

}  // namespace vantrell
