#include "testing/EngineFixture.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EngineFixture;

// The user flies around the world, and the clock is set wrong and then right again.
TEST(AutoSync, NoJumpOfClockAndZoneLosesAReportOrAsksTwiceInARun) {
    using std::chrono::hours;
    for (const hours jump : {hours(24), hours(-24), hours(365 * 24), hours(-365 * 24)}) {
        for (const bool isDuringARun : {false, true}) {
            SCOPED_TRACE(std::to_string(jump.count()) + (isDuringARun ? " during a run" : " between runs"));
            EngineFixture fixture;
            fixture.otherwise = EngineFixture::sales(1);
            fixture.store(ReportFrequency::daily, "2025-01-01", ReportStatus::ok);
            const auto set = [&fixture](hours by, const char* zone) {
                fixture.clock.setNow(fixture.clock.now() + by);
                fixture.localTime.setZone(zone);
            };
            const auto run = [&fixture] {
                fixture.run(fixture.engine().autoSyncIfDue());
                auto asked = fixture.takeRequests();
                std::ranges::sort(asked);
                EXPECT_EQ(std::ranges::adjacent_find(asked), asked.end()) << "asked twice";
                return asked.size();
            };
            const auto leap = [&] {
                set(jump, jump.count() > 0 ? "Pacific/Kiritimati" : "Pacific/Pago_Pago");
            };
            fixture.http.whileWaiting = [&, left = 5](const HttpRequest&) mutable {
                if (isDuringARun && --left == 0) {
                    leap();
                }
            };
            EXPECT_GT(run(), 14U);
            if (!isDuringARun) {
                leap();
            }
            EXPECT_GT(run(), 0U) << "a time that lies ahead counts as none";
            set(-jump + hours(5), "Europe/Berlin");
            EXPECT_GT(run(), 0U);
            const CivilDate today = fixture.localTime.zone().dateAt(fixture.clock.now());
            for (int offset = 1; offset <= 14; ++offset) {
                EXPECT_EQ(fixture.daily(dayKey(*movedByDays(today, -offset))).status(), ReportStatus::ok);
            }
            fixture.run(fixture.engine().refetchDay(*movedByDays(today, -1)));
            EXPECT_GT(fixture.daily(dayKey(*movedByDays(today, -1))).fetchedAt,
                      fixture.clock.now() - std::chrono::seconds(1));
        }
    }
}

}  // namespace
}  // namespace vantrell
