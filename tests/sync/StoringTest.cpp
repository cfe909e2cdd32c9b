#include "files/TextFile.h"
#include "testing/EngineFixture.h"
#include "testing/FaultyVfs.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace vantrell {
namespace {

using testing::EngineFixture;

constexpr const char* day = "2026-11-20";

TEST(StoringAReport, FailsByItselfWhereItCostsTooMuchAndLeavesNothingBehind) {
    const std::string header = "Provider\tSKU\tTitle\tUnits\tBegin Date\tEnd Date\n";
    std::string manyTexts = header;
    for (int line = 0; line < 170'000; ++line) {
        manyTexts += "\t" + std::to_string(line) + "\t\t\t1/1/2026\t\n";
    }
    const struct {
        const char* name;
        std::string body;
        const char* message;
    } cases[] = {
        {"too long a line behind good ones", header + "\tnew\t\t\t1/1/2026\t\n" + std::string(1U << 20U, 'x'),
         "The report has a line that is too long."},
        {"a line without end", std::string(2'000'000, 'x'), "The report has a line that is too long."},
        {"too many new texts", manyTexts, "The report holds more than can be kept."},
        {"no memory", "", "There is not enough memory for the report."},
    };
    for (const auto& [name, body, message] : cases) {
        EngineFixture fixture;
        fixture.store(ReportFrequency::daily, day, ReportStatus::ok);
        fixture.answers[std::string("DAILY ") + day] = HttpResponse{200, body};
        fixture.worker.isOutOfMemory = body.empty();
        const std::size_t texts = fixture.context().texts().size();
        fixture.run(fixture.engine().refetchDay(*dateFromDayKey(day)));
        EXPECT_EQ(fixture.daily(day).status(), ReportStatus::error) << name;
        EXPECT_EQ(fixture.daily(day).message, message) << name;
        EXPECT_EQ(fixture.context().fetchSalesRows().size(), 1U) << name;
        EXPECT_EQ(fixture.context().texts().size(), texts) << name;
        EXPECT_FALSE(fixture.engine().isSyncing()) << name;
    }
}

TEST(StoringAReport, LooksAgainForAFresherCopyWhenItsTextWasRead) {
    for (const bool isFresher : {true, false}) {
        EngineFixture fixture;
        fixture.otherwise = EngineFixture::sales(2);
        fixture.store(ReportFrequency::daily, day, ReportStatus::ok);
        fixture.worker.isHeld = true;
        fixture.tasks().spawn(fixture.engine().refetchDay(*dateFromDayKey(day)));
        fixture.worker.release();
        auto found = *fixture.context().salesReports().find(salesReportKey("DAILY", day));
        found.record.fetchedAt = fixture.clock.now() + std::chrono::seconds(isFresher ? 1 : -1);
        fixture.clock.advance(std::chrono::seconds(1));
        fixture.context().salesReports().update(found.id, found.record);
        fixture.engine().requestStop();
        fixture.worker.release();
        EXPECT_EQ(fixture.daily(day).rowCount, isFresher ? 1 : 2)
            << "what was asked for is stored after a stop";
        EXPECT_FALSE(fixture.engine().isSyncing());
    }
}

TEST(StoringAReport, KeepsAFresherCopyThatCameWhileTheRequestWasOut) {
    struct Fresher {
        const char* name;
        ReportStatus status;
        std::chrono::seconds after;
        std::chrono::seconds passed;
        const char* outcome;
        bool othersWrite = true;
    };
    const std::vector<Fresher> cases = {
        {"ok and later", ReportStatus::ok, std::chrono::seconds(1), std::chrono::seconds(1), "skipped"},
        {"where nobody else writes", ReportStatus::ok, std::chrono::seconds(1), std::chrono::seconds(1), "ok",
         false},
        {"later but not ok", ReportStatus::error, std::chrono::seconds(1), std::chrono::seconds(1), "ok"},
        {"ok but not later", ReportStatus::ok, std::chrono::seconds(0), std::chrono::seconds(0), "ok"},
        {"from a clock that ran ahead", ReportStatus::ok, std::chrono::hours(1), std::chrono::seconds(1),
         "ok"},
    };
    for (const Fresher& row : cases) {
        EngineFixture fixture;
        fixture.restart(row.othersWrite);
        fixture.answers[std::string("DAILY ") + day] = EngineFixture::sales(2);
        fixture.store(ReportFrequency::daily, day, ReportStatus::error);
        fixture.http.whileWaiting = [&](const HttpRequest&) {
            auto found = *fixture.context().salesReports().find(salesReportKey("DAILY", day));
            found.record.setStatus(row.status);
            found.record.fetchedAt = fixture.clock.now() + row.after;
            fixture.clock.advance(row.passed);
            fixture.context().salesReports().update(found.id, found.record);
        };
        fixture.run(fixture.engine().refetchDay(*dateFromDayKey(day)));
        EXPECT_EQ(fixture.log().front(), std::string("sales daily 2026-11-20: ") + row.outcome) << row.name;
        const bool kept = std::string(row.outcome) == "skipped";
        EXPECT_EQ(fixture.context().fetchSalesRows().size(), kept ? 1U : 2U) << row.name;
        EXPECT_EQ(fixture.daily(day).status(), ReportStatus::ok) << row.name;
    }
}

TEST(StoringAReport, KeepsInAFileTheLinesInWhosePlaceNothingComes) {
    EngineFixture fixture;
    const auto refetch = [&fixture](const HttpResult& answer) {
        fixture.answers[std::string("DAILY ") + day] = answer;
        fixture.run(fixture.engine().refetchDay(*dateFromDayKey(day)));
        const SalesReport report = fixture.daily(day);
        return report.statusRaw + " " +
               std::to_string(fixture.context().salesLines().lineCount("DAILY", day)) + " " + report.message;
    };
    const HttpResult none = EngineFixture::error(404, "There were no sales for the date specified.");
    const std::filesystem::path folder = fixture.keptLines();
    const std::string kept = "What was stored before is kept in backup/DAILY-2026-11-20";
    EXPECT_THAT(refetch(EngineFixture::sales(2)), ::testing::StartsWith("ok 2 "));
    std::ofstream(folder.string()) << "no folder";
    EXPECT_THAT(refetch(none), ::testing::StartsWith("error 2 The stored lines could not be kept"));
    std::filesystem::remove(folder);
    EXPECT_THAT(refetch(none), ::testing::EndsWith(kept + ".tsv."));
    EXPECT_THAT(refetch(EngineFixture::sales(1)), ::testing::StartsWith("ok 1 "));
    EXPECT_THAT(refetch(EngineFixture::sales(0)), ::testing::EndsWith(kept + "-2.tsv."));
    const auto text = std::get<std::string>(readTextFile(folder / "DAILY-2026-11-20.tsv", 10'000));
    EXPECT_EQ(std::ranges::count(text, '\n'), 3) << text;
    EXPECT_THAT(text, ::testing::StartsWith("beginDate\tendDate\tsku\t"));
}

TEST(StoringAReport, GoesOnWhenASaveFailsAndSavesEverythingWithTheNextOne) {
    testing::FaultyVfs vfs("faulty-sync");
    EngineFixture fixture(vfs.name());
    fixture.otherwise = EngineFixture::sales(1);
    fixture.http.whileWaiting = [&](const HttpRequest&) {
        // The disk is full for the first half of the run.
        const bool full = fixture.http.requests.size() < 8;
        vfs.failWritesFrom(full ? 1 : 0, SQLITE_FULL);
    };
    fixture.run(fixture.engine().runSync());
    EXPECT_FALSE(fixture.context().hasChanges());
    EXPECT_EQ(std::ssize(fixture.context().fetchSalesRows()),
              std::ranges::count_if(fixture.requests(), [](const std::string& request) {
                  return request != "rates" && !request.starts_with("FINANCE");
              }));
}

}  // namespace
}  // namespace vantrell
