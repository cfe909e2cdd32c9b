#include "testing/EngineFixture.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EngineFixture;

TEST(SyncRun, ShowsEachPhaseAndADayPassedOverAsWell) {
    EngineFixture fixture;
    for (int day = 8; day < 22; ++day) {
        fixture.store(ReportFrequency::daily, (day < 10 ? "2026-11-0" : "2026-11-") + std::to_string(day),
                      ReportStatus::ok);
    }
    std::vector<double> fractions;
    std::vector<std::string> texts;
    SyncEngine& engine = fixture.engine();
    QObject::connect(&engine, &SyncEngine::progressFractionChanged, &engine, [&] {
        if (const auto fraction = engine.progressFraction()) {
            fractions.push_back(*fraction);
        }
    });
    QObject::connect(&engine, &SyncEngine::progressTextChanged, &engine,
                     [&] { texts.push_back(engine.progressText()); });
    fixture.run(engine.runSync());
    ASSERT_EQ(fractions.size(), 14U);
    EXPECT_DOUBLE_EQ(fractions.front(), 1.0 / 14);
    EXPECT_DOUBLE_EQ(fractions.back(), 1);
    EXPECT_EQ(texts,
              (std::vector<std::string>{"Daily reports", "Monthly reports", "Yearly reports",
                                        "Finance reports · 2024-01", "Finance reports · 2024-02", ""}));
}

TEST(Run, NeverStartsBesideAnother) {
    EngineFixture fixture;
    fixture.http.whileWaiting = [&](const HttpRequest&) {
        if (fixture.http.requests.size() == 1) {
            fixture.run(fixture.engine().runBackfill());
            EXPECT_EQ(fixture.engine().lastError(), std::nullopt);
        }
    };
    fixture.run(fixture.engine().runSync());
    EXPECT_EQ(fixture.takeRequests().size(), 20U) << "those of one run";
}

TEST(Run, RaisesTheRevisionAtMostOnceInEightSecondsAndAtItsEnd) {
    EngineFixture fixture;
    fixture.store(ReportFrequency::yearly, "2025", ReportStatus::ok);
    fixture.context().rateSets().insert({.fetchedAt = fixture.clock.now()});
    fixture.http.whileWaiting = [&](const HttpRequest&) { fixture.clock.advance(std::chrono::seconds(3)); };
    fixture.run(fixture.engine().runSync());
    // 18 reports of 3.15 s: the first raises, then every third; the end raises by force.
    EXPECT_EQ(fixture.engine().revision(), 7);
}

TEST(Run, KeepsTheNewest2000LinesOfTheLog) {
    EngineFixture fixture;
    for (int index = 0; index < 2100; ++index) {
        fixture.context().syncLog().insert(
            {.date = testing::noon(2026, 1, 1) + std::chrono::seconds(index), .key = std::to_string(index)});
    }
    fixture.engine().finishRun("Sync");
    const auto& log = fixture.context().syncLog().all();
    EXPECT_EQ(log.size(), 2000U);
    EXPECT_EQ(log.begin()->second.key, "100");
}

TEST(Run, ThatIsUnderWayWhenTheProgramEndsChangesNothingMore) {
    EngineFixture fixture;
    fixture.clock.autoAdvance = false;
    TaskScope tasks;
    tasks.spawn(fixture.engine().runBackfill());
    ASSERT_EQ(fixture.requests().size(), 1U) << "the pause after the first report";
    fixture.destroyEngine();
    EXPECT_EQ(tasks.pending(), 0);
    EXPECT_EQ(fixture.requests().size(), 1U);
    EXPECT_EQ(fixture.log().size(), 1U);
}

TEST(Run, ThatIsReadingAReportWhenTheProgramEndsChangesNothingMore) {
    EngineFixture fixture;
    fixture.otherwise = EngineFixture::sales(2);
    fixture.worker.isHeld = true;
    TaskScope tasks;
    tasks.spawn(fixture.engine().runBackfill());
    fixture.worker.release();
    ASSERT_TRUE(fixture.worker.hasWork()) << "unpacked, not yet parsed";
    fixture.destroyEngine();
    EXPECT_EQ(tasks.pending(), 0);
    EXPECT_TRUE(fixture.log().empty());
    EXPECT_TRUE(fixture.context().salesLines().batches().empty());
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

}  // namespace
}  // namespace vantrell
