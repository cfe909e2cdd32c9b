#include "testing/EngineFixture.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EngineFixture;

TEST(Run, NeverStartsBesideAnother) {
    EngineFixture fixture;
    fixture.http.whileWaiting = [&](const HttpRequest&) {
        if (fixture.http.requests.size() == 1) {
            fixture.run(fixture.engine().runBackfill());
            EXPECT_EQ(fixture.engine().lastError(), std::nullopt);
        }
    };
    fixture.run(fixture.engine().runSync());
    auto asked = fixture.takeRequests();
    std::ranges::sort(asked);
    EXPECT_EQ(std::ranges::adjacent_find(asked), asked.end()) << "those of one run";
}

TEST(Run, RaisesTheRevisionAtMostOnceInEightSecondsAndAtItsEnd) {
    EngineFixture fixture;
    fixture.http.whileWaiting = [&](const HttpRequest&) { fixture.clock.advance(std::chrono::seconds(3)); };
    fixture.run(fixture.engine().refetchMonth("2026-10"));
    // 32 reports of 3.15 s: the first raises, then every third; the end raises by force.
    EXPECT_EQ(fixture.engine().revision(), 12);
}

TEST(Run, KeepsTheNewest2000LinesOfTheLog) {
    EngineFixture fixture;
    for (int index = 0; index < 2100; ++index) {
        fixture.context().syncLog().insert(
            {.date = testing::noon(2026, 1, 1) + std::chrono::seconds(index), .key = std::to_string(index)});
    }
    fixture.run(fixture.engine().refetchFinance("2026-01"));
    const auto& log = fixture.context().syncLog().all();
    EXPECT_EQ(log.size(), 2000U);
    EXPECT_EQ(log.begin()->second.key, "101") << "the run adds a line";
}

TEST(Run, ThatIsUnderWayWhenTheProgramEndsChangesNothingMore) {
    for (const bool isReading : {false, true}) {
        EngineFixture fixture;
        fixture.otherwise = EngineFixture::sales(2);
        fixture.worker.isHeld = isReading;
        fixture.clock.autoAdvance = false;
        TaskScope tasks;
        tasks.spawn(fixture.engine().runBackfill());
        fixture.worker.release();
        ASSERT_EQ(fixture.worker.hasWork(), isReading) << "unpacked, not yet parsed; else the first pause";
        fixture.destroyEngine();
        EXPECT_EQ(tasks.pending(), 0);
        EXPECT_EQ(fixture.requests().size(), 1U);
        EXPECT_EQ(fixture.log().size(), isReading ? 0U : 1U);
        EXPECT_EQ(fixture.context().salesLines().batches().size(), isReading ? 0U : 1U);
    }
}

TEST(Run, LetsTheWindowMoveWhileItKeepsALongReport) {
    for (const bool ends : {false, true}) {
        EngineFixture fixture;
        fixture.otherwise = EngineFixture::sales(9'000);
        fixture.clock.autoAdvance = false;
        TaskScope tasks;
        tasks.spawn(fixture.engine().refetchDay(*dateFromDayKey("2026-11-20")));
        EXPECT_EQ(fixture.clock.slept, std::vector{std::chrono::microseconds::zero()});
        if (ends) {
            fixture.destroyEngine();
            EXPECT_TRUE(fixture.log().empty());
        } else {
            fixture.clock.advance(std::chrono::seconds(1));
            EXPECT_GT(std::ranges::count(fixture.clock.slept, std::chrono::microseconds::zero()), 3);
            EXPECT_EQ(fixture.context().fetchSalesRows().size(), 9'000U);
            EXPECT_FALSE(fixture.context().hasChanges());
        }
        EXPECT_EQ(tasks.pending(), 0);
    }
}

TEST(Run, IsStillToldAfterARestart) {
    EngineFixture fixture;
    fixture.otherwise = EngineFixture::error(500, "Try later.");
    fixture.run(fixture.engine().refetchFinance("2026-01"));
    const auto told = fixture.engine().lastRun();
    EXPECT_EQ(told->failed, 1);
    fixture.restart();
    EXPECT_EQ(fixture.engine().lastRun(), told);
    fixture.clock.setNow(told->at - std::chrono::seconds(1));
    fixture.restart();
    EXPECT_EQ(fixture.engine().lastRun(), std::nullopt) << "what lies ahead counts as absent";
}

}  // namespace
}  // namespace vantrell
