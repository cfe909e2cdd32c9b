#pragma once

#include "base/Instant.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// A named time zone with its whole history of offsets; a cheap value to copy.
class TimeZone {
  public:
    /// Absent for a name that the time zone database doesn't know.
    [[nodiscard]] static std::optional<TimeZone> named(std::string_view id);
    /// The zone that the machine is set to now (the TZ variable first); UTC if it can't be told. Can take
    /// milliseconds. TZ can name a zone or a zone file, or spell out rules.
    [[nodiscard]] static TimeZone ofHost();

    [[nodiscard]] std::string id() const;
    /// What the clocks on the wall are ahead of UTC at `instant`; negative west of it.
    [[nodiscard]] std::chrono::milliseconds offsetAt(Instant instant) const;
    /// The day that a calendar on the wall in this zone shows at `instant`.
    [[nodiscard]] CivilDate dateAt(Instant instant) const;
    /// Noon of `day` in this zone; where noon is skipped by a change of the clocks, the moment after the gap.
    [[nodiscard]] Instant noonOf(CivilDate day) const;

  private:
    struct Zone;
    explicit TimeZone(std::shared_ptr<const Zone> zone);
    [[nodiscard]] static TimeZone ofFile(const std::string& path);
    std::shared_ptr<const Zone> zone_;
};

/// Which zone the user is in. Asked afresh each time, so that a change while the program runs is followed.
class LocalTime {
  public:
    virtual ~LocalTime() = default;
    [[nodiscard]] virtual TimeZone zone() const = 0;
};

/// The zone of the machine. Looks at every call whether the setting changed, and finds the zone anew only
/// then. One thread only.
class HostLocalTime final : public LocalTime {
  public:
    HostLocalTime();
    ~HostLocalTime() override;
    HostLocalTime(const HostLocalTime&) = delete;
    HostLocalTime& operator=(const HostLocalTime&) = delete;

    [[nodiscard]] TimeZone zone() const override;

  private:
    struct Known;
    std::unique_ptr<Known> known_;
};

}  // namespace vantrell
