#include "platform/LocalTime.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <sys/stat.h>
#include <utility>

#include <unicode/basictz.h>
#include <unicode/simpletz.h>
#include <unicode/tztrans.h>
#include <unicode/unistr.h>

namespace vantrell {
namespace {

using std::chrono::days;
using std::chrono::milliseconds;
using std::chrono::sys_days;

constexpr const char* zoneFile = "/etc/localtime";

std::unique_ptr<const icu::BasicTimeZone> withHistory(std::unique_ptr<icu::TimeZone> zone) {
    icu::UnicodeString id;
    if (!zone || zone->getID(id) == icu::UnicodeString(UCAL_UNKNOWN_ZONE_ID)) {
        return nullptr;
    }
    // Every kind of zone that the library makes is of this class.
    return std::unique_ptr<const icu::BasicTimeZone>(dynamic_cast<icu::BasicTimeZone*>(zone.release()));
}

std::optional<std::string> variable(const char* name) {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

/// The zone's name in a TZ setting: "Asia/Tokyo", ":Asia/Tokyo" and "/usr/share/zoneinfo/Asia/Tokyo" are one.
std::string_view nameIn(std::string_view setting) {
    for (const std::string_view marker : {":", "/zoneinfo/", "posix/", "right/"}) {
        const auto found = setting.find(marker);
        setting.remove_prefix(found == std::string_view::npos ? 0 : found + marker.size());
    }
    return setting;
}

milliseconds toMilliseconds(UDate date) {
    return milliseconds(static_cast<milliseconds::rep>(date));
}

UDate toDate(milliseconds time) {
    return static_cast<UDate>(time.count());
}

}  // namespace

struct TimeZone::Zone {
    std::unique_ptr<const icu::BasicTimeZone> rules;

    [[nodiscard]] milliseconds offsetAt(milliseconds instant) const {
        std::int32_t standard = 0;
        std::int32_t saving = 0;
        UErrorCode error = U_ZERO_ERROR;
        rules->getOffset(toDate(instant), 0, standard, saving, error);
        return milliseconds(standard + saving);
    }

    /// Where a change of the clocks skips or repeats `local`, `side` tells which offset is taken.
    [[nodiscard]] milliseconds offsetOfLocal(milliseconds local, UTimeZoneLocalOption side) const {
        std::int32_t standard = 0;
        std::int32_t saving = 0;
        UErrorCode error = U_ZERO_ERROR;
        rules->getOffsetFromLocal(toDate(local), side, side, standard, saving, error);
        return milliseconds(standard + saving);
    }

    [[nodiscard]] milliseconds lastChangeUpTo(milliseconds instant) const {
        icu::TimeZoneTransition change;
        const bool found = rules->getPreviousTransition(toDate(instant), 1, change) != 0;
        return found ? toMilliseconds(change.getTime()) : instant;
    }
};

TimeZone::TimeZone(std::shared_ptr<const Zone> zone) : zone_(std::move(zone)) {}

std::optional<TimeZone> TimeZone::named(std::string_view id) {
    const auto name = icu::UnicodeString::fromUTF8({id.data(), static_cast<std::int32_t>(id.size())});
    icu::UnicodeString canonical;
    UBool isOfDatabase = 0;
    UErrorCode error = U_ZERO_ERROR;
    icu::TimeZone::getCanonicalID(name, canonical, isOfDatabase, error);
    // The library would also take "GMT+5", with the opposite sign of what it means in a TZ setting.
    auto rules = withHistory(std::unique_ptr<icu::TimeZone>(icu::TimeZone::createTimeZone(name)));
    if (isOfDatabase == 0 || !rules) {
        return std::nullopt;
    }
    return TimeZone(std::make_shared<const Zone>(Zone{std::move(rules)}));
}

TimeZone TimeZone::ofHost() {
    std::unique_ptr<const icu::BasicTimeZone> rules;
    if (const auto setting = variable("TZ")) {
        if (auto zone = named(nameIn(*setting))) {
            return *zone;
        }
        tzset();
        rules = std::make_unique<icu::SimpleTimeZone>(static_cast<std::int32_t>(-timezone * 1000),
                                                      icu::UnicodeString::fromUTF8(*setting));
    } else {
        rules = withHistory(std::unique_ptr<icu::TimeZone>(icu::TimeZone::detectHostTimeZone()));
    }
    if (!rules) {
        rules = std::make_unique<icu::SimpleTimeZone>(0, "UTC");
    }
    return TimeZone(std::make_shared<const Zone>(Zone{std::move(rules)}));
}

std::string TimeZone::id() const {
    icu::UnicodeString name;
    std::string text;
    return zone_->rules->getID(name).toUTF8String(text);
}

milliseconds TimeZone::offsetAt(Instant instant) const {
    return zone_->offsetAt(std::chrono::floor<milliseconds>(instant.time_since_epoch()));
}

CivilDate TimeZone::dateAt(Instant instant) const {
    const auto time = std::chrono::floor<milliseconds>(instant.time_since_epoch());
    const auto day = std::chrono::floor<days>(time + zone_->offsetAt(time));
    constexpr auto first = sys_days(std::chrono::year::min() / std::chrono::January / 1);
    constexpr auto last = sys_days(std::chrono::year::max() / std::chrono::December / 31);
    return std::clamp(sys_days(day), first, last);
}

Instant TimeZone::noonOf(CivilDate day) const {
    const milliseconds local = sys_days(day).time_since_epoch() + std::chrono::hours(12);
    const auto before = zone_->offsetOfLocal(local, UCAL_TZ_LOCAL_FORMER);
    const auto after = zone_->offsetOfLocal(local, UCAL_TZ_LOCAL_LATTER);
    const bool skipped = before < after;
    return Instant(skipped ? zone_->lastChangeUpTo(local - before) : local - before);
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
