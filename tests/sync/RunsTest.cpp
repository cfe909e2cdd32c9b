#include "testing/EngineFixture.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EngineFixture;

std::vector<std::string> days(int first, int last) {
    std::vector<std::string> result;
    for (int offset = first; offset <= last; ++offset) {
        result.push_back("DAILY " +
                         dayKey(*movedByDays(CivilDate{std::chrono::year{2026} / 11 / 22}, -offset)));
    }
    return result;
}

std::vector<std::string> joined(std::vector<std::vector<std::string>> parts) {
    std::vector<std::string> result;
    for (const auto& part : parts) {
        result.insert(result.end(), part.begin(), part.end());
    }
    return result;
}

TEST(SyncRun, AsksForDaysMonthsYearFinanceAndRatesInThisOrder) {
    EngineFixture fixture;
    fixture.run(fixture.engine().runSync());
    EXPECT_EQ(fixture.requests(), joined({days(1, 14),
                                          {"MONTHLY 2026-10", "MONTHLY 2026-09", "YEARLY 2025",
                                           "FINANCE 2024-01", "FINANCE 2024-02", "rates"}}));
    EXPECT_EQ(fixture.clock.slept.size(), 19U) << "a pause after each report";
    EXPECT_EQ(fixture.engine().lastRunSummary().rfind("Sync finished ", 0), 0U);
    EXPECT_FALSE(fixture.engine().isSyncing());
    EXPECT_EQ(fixture.engine().progressText(), "");
}

TEST(SyncRun, AsksOnlyForTheDaysThatAreDue) {
    EngineFixture fixture;
    using enum ReportStatus;
    const std::vector<std::pair<std::string, ReportStatus>> stored = {
        {"2026-11-21", ok},    {"2026-11-20", empty},   {"2026-11-19", empty},       {"2026-11-18", empty},
        {"2026-11-17", error}, {"2026-11-16", pending}, {"2026-11-15", unavailable}, {"2026-11-14", missing}};
    for (const auto& [date, status] : stored) {
        fixture.store(ReportFrequency::daily, date, status);
    }
    fixture.store(ReportFrequency::monthly, "2026-10", ok);
    fixture.store(ReportFrequency::monthly, "2026-09", empty);
    fixture.store(ReportFrequency::yearly, "2025", unavailable);
    fixture.storeFinance("2026-09", ok);
    fixture.storeFinance("2026-12", ok);
    fixture.storeFinance("2027-01", error);
    fixture.run(fixture.engine().runSync());
    EXPECT_EQ(fixture.requests(),
              joined({{"DAILY 2026-11-20", "DAILY 2026-11-19", "DAILY 2026-11-17", "DAILY 2026-11-16",
                       "DAILY 2026-11-14"},
                      days(9, 14),
                      {"MONTHLY 2026-09", "FINANCE 2027-01", "FINANCE 2027-02", "rates"}}));
}

TEST(SyncRun, ThatIsStoppedFallsThroughToTheRatesAndEndsLikeAnyOther) {
    EngineFixture fixture;
    fixture.http.whileWaiting = [&](const HttpRequest&) {
        if (fixture.http.requests.size() == 3) {
            fixture.engine().requestStop();
        }
    };
    fixture.run(fixture.engine().runSync());
    EXPECT_EQ(fixture.requests(), joined({days(1, 3), {"rates"}}));
    EXPECT_EQ(fixture.daily("2026-11-19").status(), ReportStatus::pending) << "the answer is still stored";
    EXPECT_EQ(fixture.engine().lastRunSummary().rfind("Sync finished ", 0), 0U);
    fixture.takeRequests();
    fixture.http.whileWaiting = nullptr;
    fixture.run(fixture.engine().runSync());
    EXPECT_GT(fixture.requests().size(), 4U) << "the next run forgets the stop";
}

TEST(SyncRun, EndsAtARefusedKeyAndSaysWhy) {
    EngineFixture fixture;
    fixture.otherwise = EngineFixture::error(401, "Not you.");
    fixture.run(fixture.engine().runSync());
    EXPECT_EQ(fixture.requests(), joined({days(1, 1), {"rates"}}));
    EXPECT_EQ(fixture.engine().lastError()->rfind("Authentication failed — HTTP 401: Not you.. Check", 0),
              0U);
    EXPECT_EQ(fixture.log(), (std::vector<std::string>{"sales daily 2026-11-21: error", "rates: ok"}));
}

TEST(SyncRun, ShowsEachPhaseAndADayPassedOverAsWell) {
    EngineFixture fixture;
    for (const std::string& request : days(1, 14)) {
        fixture.store(ReportFrequency::daily, request.substr(6), ReportStatus::ok);
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

TEST(Backfill, EndsDaysAndYearsAtTheFirstThatIsPastRetention) {
    EngineFixture fixture;
    fixture.otherwise = EngineFixture::sales(1);
    fixture.answers["DAILY 2026-11-18"] = EngineFixture::gone();
    fixture.answers["YEARLY 2024"] = EngineFixture::gone();
    fixture.run(fixture.engine().runBackfill());
    const auto requests = fixture.requests();
    EXPECT_EQ(std::vector(requests.begin(), requests.begin() + 9),
              joined({days(1, 4),
                      {"YEARLY 2026", "YEARLY 2025", "YEARLY 2024", "MONTHLY 2026-10", "MONTHLY 2026-09"}}));
    EXPECT_EQ(requests[18], "MONTHLY 2025-11");
    EXPECT_EQ(requests[19], "FINANCE 2024-01");
    EXPECT_EQ(requests[requests.size() - 2], "FINANCE 2027-03") << "one period past the current one";
    EXPECT_EQ(requests.back(), "rates");
    EXPECT_EQ(requests.size(), 4U + 3 + 12 + 39 + 1);
}

TEST(Backfill, RepeatedAsksOnlyForWhatIsNotFinal) {
    EngineFixture fixture;
    fixture.otherwise = EngineFixture::sales(0);
    fixture.answers["DAILY 2026-05-05"] = EngineFixture::noSales();
    fixture.run(fixture.engine().runBackfill());
    EXPECT_EQ(fixture.takeRequests().size(), 365U + 19 + 12 + 39 + 1);
    fixture.clock.slept.clear();
    fixture.run(fixture.engine().runBackfill());
    EXPECT_EQ(fixture.takeRequests(), (std::vector<std::string>{"DAILY 2026-05-05", "rates"}));
    EXPECT_EQ(fixture.clock.slept.size(), 1U) << "what is passed over costs no pause";
}

TEST(Run, NeedsCredentialsAndNeverStartsBesideAnother) {
    EngineFixture fixture;
    fixture.http.whileWaiting = [&](const HttpRequest&) {
        if (fixture.http.requests.size() == 1) {
            fixture.run(fixture.engine().runBackfill());
            EXPECT_EQ(fixture.engine().lastError(), std::nullopt);
        }
    };
    fixture.run(fixture.engine().runSync());
    EXPECT_EQ(fixture.takeRequests().size(), 20U) << "those of one run";
    fixture.engine().removeCredentials();
    fixture.run(fixture.engine().runSync());
    EXPECT_TRUE(fixture.requests().empty());
    EXPECT_EQ(fixture.engine().lastError(), "Add your App Store Connect key in Settings first.");
    EXPECT_FALSE(fixture.engine().isSyncing());
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
