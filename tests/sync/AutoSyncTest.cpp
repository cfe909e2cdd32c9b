#include "testing/EngineFixture.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EngineFixture;
constexpr const char* lastAutoSync = "lastAutoSyncAt";

TEST(AutoSync, RunsAtMostOnceInFourHours) {
    EngineFixture fixture;
    fixture.store(ReportFrequency::daily, "2026-11-21", ReportStatus::ok);
    const auto runs = [&fixture] {
        fixture.run(fixture.engine().autoSyncIfDue());
        return !fixture.takeRequests().empty();
    };
    EXPECT_TRUE(runs());
    EXPECT_FALSE(runs());
    const Instant first = *fixture.defaults.date(lastAutoSync);
    fixture.clock.setNow(first + std::chrono::hours(4));
    EXPECT_FALSE(runs());
    fixture.clock.setNow(first + std::chrono::hours(4) + std::chrono::microseconds(1));
    EXPECT_TRUE(runs());
}

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

TEST(AutoSync, NotesItsStartEvenIfTheRunFailsAndTakesAnotherTypeForAbsent) {
    EngineFixture fixture;
    fixture.otherwise = HttpFailure{"down"};
    fixture.defaults.setText(lastAutoSync, "yesterday");
    const Instant start = fixture.clock.now();
    fixture.run(fixture.engine().autoSyncIfDue());
    EXPECT_EQ(fixture.defaults.date(lastAutoSync), start);
}

TEST(AutoSync, BackfillsAStoreWithoutAnOkDailyReport) {
    EngineFixture fixture;
    fixture.store(ReportFrequency::daily, "2026-11-21", ReportStatus::pending);
    fixture.store(ReportFrequency::monthly, "2026-10", ReportStatus::ok);
    fixture.run(fixture.engine().autoSyncIfDue());
    EXPECT_GT(fixture.takeRequests().size(), 365U);
    fixture.run(fixture.engine().backfillIfEmpty());
    EXPECT_FALSE(fixture.requests().empty()) << "still no ok daily report";
    EXPECT_EQ(fixture.engine().lastRunSummary().rfind("Backfill finished ", 0), 0U);
}

TEST(AutoSync, DoesNothingWithoutCredentials) {
    EngineFixture fixture;
    fixture.engine().removeCredentials();
    fixture.run(fixture.engine().autoSyncIfDue());
    fixture.run(fixture.engine().backfillIfEmpty());
    EXPECT_TRUE(fixture.requests().empty());
    EXPECT_EQ(fixture.defaults.writes, 0);
    EXPECT_EQ(fixture.engine().lastError(), std::nullopt);
}

TEST(AutoSync, BackfillOfASavedKeyDoesNotTouchTheThrottle) {
    EngineFixture fixture;
    fixture.run(fixture.engine().backfillIfEmpty());
    EXPECT_FALSE(fixture.takeRequests().empty());
    EXPECT_EQ(fixture.defaults.writes, 0);
    fixture.store(ReportFrequency::daily, "2025-01-01", ReportStatus::ok);
    fixture.run(fixture.engine().backfillIfEmpty());
    EXPECT_TRUE(fixture.requests().empty());
}

TEST(Rates, AreFetchedOnceADayOrByForce) {
    struct Case {
        const char* name;
        std::chrono::seconds age;
        bool force;
        bool asked;
    };
    const std::vector<Case> cases = {
        {"23 hours old", std::chrono::hours(23), false, false},
        {"a day old", std::chrono::hours(24), false, true},
        {"a minute old, by force", std::chrono::minutes(1), true, true},
        {"from a clock that ran ahead", -std::chrono::hours(50), false, true},
    };
    for (const Case& row : cases) {
        EngineFixture fixture;
        fixture.context().rateSets().insert({.fetchedAt = fixture.clock.now() - row.age});
        fixture.run(fixture.engine().refreshRates(row.force));
        EXPECT_EQ(!fixture.requests().empty(), row.asked) << row.name;
        EXPECT_EQ(fixture.context().rateSets().all().size(), 1U) << row.name;
    }
}

TEST(Rates, StayAsTheyAreWhenTheAnswerIsNoGood) {
    const std::vector<HttpResult> answers = {
        HttpFailure{"down"},
        EngineFixture::rates(R"({"result":"success","rates":{}})"),
        EngineFixture::rates(R"({"result":"error","rates":{"USD":1}})"),
        EngineFixture::rates(R"({"result":"success"})"),
        EngineFixture::rates("<html>"),
    };
    for (const HttpResult& answer : answers) {
        EngineFixture fixture;
        const RateSet before{"USD", fixture.clock.now(), {{"USD", 1}, {"CHF", 0.8}}};
        fixture.context().rateSets().insert(before);
        fixture.answers["rates"] = answer;
        fixture.run(fixture.engine().refreshRates(true));
        EXPECT_EQ(fixture.context().rateSets().all().begin()->second, before);
        EXPECT_EQ(fixture.log(), std::vector<std::string>{"rates: error"});
        EXPECT_FALSE(fixture.context().syncLog().all().begin()->second.message.empty());
        EXPECT_FALSE(fixture.context().hasChanges()) << "without a run nobody else would save the line";
    }
}

TEST(Rates, ThatWereFetchedReplaceTheStoredOnesAndRaiseTheRevision) {
    EngineFixture fixture;
    fixture.run(fixture.engine().refreshRates(false));
    fixture.answers["rates"] = EngineFixture::rates(R"({"result":"success","rates":{"USD":1,"JPY":151.5}})");
    fixture.clock.advance(std::chrono::hours(25));
    fixture.run(fixture.engine().refreshRates(false));
    const auto& sets = fixture.context().rateSets().all();
    ASSERT_EQ(sets.size(), 1U);
    EXPECT_EQ(sets.begin()->second, (RateSet{"USD", fixture.clock.now(), {{"JPY", 151.5}, {"USD", 1}}}));
    EXPECT_EQ(fixture.engine().revision(), 2);
    EXPECT_EQ(fixture.context().syncLog().all().rbegin()->second.message, "2 currencies against USD");
}

}  // namespace
}  // namespace vantrell
