#include "testing/EngineFixture.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EngineFixture;

TEST(Refetch, OfAMonthAsksForTheMonthAndItsFinishedDays) {
    struct Case {
        const char* text;
        std::size_t requests;
        const char* first;
        const char* last;
    };
    const std::vector<Case> cases = {
        {"2026-02", 29, "MONTHLY 2026-02", "DAILY 2026-02-28"},
        {"2024-2", 30, "MONTHLY 2024-02", "DAILY 2024-02-29"},
        {"2026-11", 22, "MONTHLY 2026-11", "DAILY 2026-11-21"},
        {"2026-12", 1, "MONTHLY 2026-12", "MONTHLY 2026-12"},
        {"-2026--01-", 32, "MONTHLY 2026-01", "DAILY 2026-01-31"},
    };
    for (const Case& row : cases) {
        EngineFixture fixture;
        fixture.run(fixture.engine().refetchMonth(row.text));
        const auto requests = fixture.requests();
        ASSERT_EQ(requests.size(), row.requests) << row.text;
        EXPECT_EQ(requests.front(), row.first);
        EXPECT_EQ(requests.back(), row.last);
        EXPECT_EQ(fixture.engine().lastRunSummary().rfind("Re-fetch finished ", 0), 0U);
    }
}

TEST(Refetch, OfNoMonthSaysHowToWriteOneAndStartsNothing) {
    for (const char* text : {"2026", "2026-13", "2026-00", "abc", "", "2026-08-01", "2026-0x"}) {
        EngineFixture fixture;
        fixture.engine().removeCredentials();
        fixture.run(fixture.engine().refetchMonth(text));
        EXPECT_EQ(fixture.engine().lastError(), "Use a month like 2026-08.") << text;
        EXPECT_TRUE(fixture.requests().empty());
        EXPECT_EQ(fixture.engine().lastRunSummary(), "");
    }
}

TEST(Refetch, OfAMonthEndsAtAStopAndGoesOnAfterAFailure) {
    EngineFixture fixture;
    fixture.answers["DAILY 2026-02-02"] = HttpFailure{"down"};
    fixture.answers["DAILY 2026-02-05"] = EngineFixture::error(429, "Slow down.");
    fixture.run(fixture.engine().refetchMonth("2026-02"));
    EXPECT_EQ(fixture.requests().size(), 6U);
    EXPECT_FALSE(fixture.engine().isSyncing());
}

TEST(ConnectionTest, SaysWhatTheServiceAnsweredAndStoresNothing) {
    struct Case {
        const char* name;
        HttpResult answer;
        const char* text;
    };
    const std::vector<Case> cases = {
        {"success", EngineFixture::sales(3), "OK — report received (3 data lines)"},
        {"not yet", EngineFixture::notYet(),
         "Credentials accepted. Not published yet — HTTP 404: Report is not available yet."},
        {"no sales", EngineFixture::noSales(),
         "Credentials accepted. No sales — HTTP 404: There were no sales for the date specified."},
        {"failure", HttpFailure{"down"}, "Failed — down"},
    };
    for (const Case& row : cases) {
        EngineFixture fixture;
        fixture.otherwise = row.answer;
        auto task = fixture.engine().testConnection();
        EXPECT_EQ(QCoro::waitFor(std::move(task)), row.text) << row.name;
        EXPECT_EQ(fixture.requests(), std::vector<std::string>{"DAILY 2026-11-21"});
        EXPECT_FALSE(fixture.context().hasChanges());
        EXPECT_TRUE(fixture.context().salesReports().all().empty());
    }
}

TEST(Credentials, AreReadAtTheStartSavedAndForgotten) {
    EngineFixture fixture;
    SyncEngine& engine = fixture.engine();
    EXPECT_TRUE(engine.hasCredentials());
    fixture.run(engine.refetchDay(*dateFromDayKey("2026-11-20")));
    engine.saveCredentials({"issuer", "key", "no key", ""});
    EXPECT_FALSE(engine.hasCredentials());
    EXPECT_EQ(QCoro::waitFor(engine.testConnection()),
              "Enter the Issuer ID, Key ID, key file and vendor number first.");
    engine.saveCredentials({"issuer", "key", "no key!", "6041"});
    EXPECT_EQ(QCoro::waitFor(engine.testConnection())
                  .rfind("Authentication failed — The .p8 private key could not be read", 0),
              0U)
        << "the token of the old key is not used again";
    engine.removeCredentials();
    EXPECT_FALSE(engine.hasCredentials());
    EXPECT_EQ(fixture.context().salesReports().all().size(), 1U) << "stored reports stay";
}

TEST(Credentials, ThatCanNotBeSavedLeaveTheOldOnesInForce) {
    EngineFixture fixture;
    fixture.secrets.failNextAdd({1, "The keyring is locked"});
    EXPECT_THROW(fixture.engine().saveCredentials({}), CredentialsError);
    EXPECT_TRUE(fixture.engine().hasCredentials());
    fixture.run(fixture.engine().refetchDay(*dateFromDayKey("2026-11-20")));
    EXPECT_EQ(fixture.requests().size(), 1U);
}

}  // namespace
}  // namespace vantrell
