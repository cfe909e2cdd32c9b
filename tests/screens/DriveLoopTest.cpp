#include "screens/DriveLoop.h"
#include "testing/EngineFixture.h"

#include <memory>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EngineFixture;

/// A window's drive loop over an engine whose runs answer at once.
class DriveLoopTest : public ::testing::Test {
  protected:
    DriveLoopTest() {
        fixture.store(ReportFrequency::daily, "2026-11-21", ReportStatus::ok);
        fixture.clock.autoAdvance = false;
        loop = std::make_unique<DriveLoop>(
            DriveLoop::Parts{fixture.engine(), store, fixture.context(), fixture.clock, fixture.tasks()});
    }
    // The loop ends its wait; what an engine still does ends with the engine.
    ~DriveLoopTest() override {
        loop.reset();
        fixture.destroyEngine();
    }

    // Runs begun since the last call: each asks for the same first day.
    std::size_t runsBegun() {
        const auto requests = fixture.takeRequests();
        return static_cast<std::size_t>(std::ranges::count(requests, "DAILY 2026-11-20"));
    }
    std::int64_t reloads() {
        const std::int64_t now = store.loadRevision();
        return now - std::exchange(seen, now);
    }

    EngineFixture fixture;
    Locale locale{LocaleNames{"C", "C", "C", "C", "C"}};
    ReportCalendar calendar{fixture.clock, fixture.localTime};
    EarningsStore store{fixture.defaults, locale, calendar};
    std::unique_ptr<DriveLoop> loop;
    std::int64_t seen = 0;
};

TEST_F(DriveLoopTest, GoesRoundEvery900SecondsAndRunsEvery4Hours) {
    loop->start();
    fixture.clock.advance(std::chrono::seconds(899));
    runsBegun();
    reloads();
    fixture.clock.advance(std::chrono::seconds(1));
    EXPECT_EQ(reloads(), 1);
    EXPECT_EQ(runsBegun(), 0U);
    fixture.clock.advance(std::chrono::hours(4));
    EXPECT_GE(reloads(), 16);
    EXPECT_EQ(runsBegun(), 1U) << "the throttle lets one run through";
}

TEST_F(DriveLoopTest, ReadsAtEachActivationAndStartsAtMostOneRun) {
    loop->start();
    fixture.clock.advance(std::chrono::seconds(120));
    runsBegun();
    reloads();
    for (int time = 0; time < 10; ++time) {
        loop->becameActive();
    }
    EXPECT_EQ(reloads(), 10);
    EXPECT_EQ(runsBegun(), 0U);
}

TEST_F(DriveLoopTest, ReadsAtEachNewRevisionOfTheEngine) {
    fixture.tasks().spawn(fixture.engine().refreshRates(true));
    fixture.tasks().spawn(fixture.engine().refreshRates(true));
    EXPECT_EQ(reloads(), 0) << "the window may move first";
    fixture.clock.advance(std::chrono::microseconds::zero());
    EXPECT_EQ(reloads(), 2);
}

TEST_F(DriveLoopTest, LetsTheWindowMoveWhileItReadsMuch) {
    const std::vector<SalesRowView> lines(20'000, testing::sale(1, "1"));
    fixture.context().replaceSalesRows("DAILY", "2026-11-20", lines);
    fixture.context().replaceSalesRows("DAILY", "2026-11-21", lines);
    loop->start();
    EXPECT_FALSE(store.isLoaded());
    EXPECT_EQ(runsBegun(), 0U) << "first what is there, then what is new";
    fixture.clock.advance(std::chrono::microseconds::zero());
    EXPECT_EQ(store.snapshot()->salesRows.size(), 40'000U);
    EXPECT_EQ(runsBegun(), 1U);
}

TEST_F(DriveLoopTest, AsksForOldRatesBeforeItsFirstRunAlone) {
    loop->start();
    fixture.clock.advance(std::chrono::microseconds::zero());
    EXPECT_EQ(fixture.takeRequests(), (std::vector<std::string>{"rates", "DAILY 2026-11-20"}));
    fixture.clock.advance(std::chrono::hours(30));
    const auto requests = fixture.takeRequests();
    EXPECT_EQ(std::ranges::count(requests, "rates"), 1) << "in their place once they are a day old";
    EXPECT_NE(requests.front(), "rates");
}

TEST_F(DriveLoopTest, AsksForOldRatesAlsoWhereNoRunIsDue) {
    fixture.defaults.setDate("lastAutoSyncAt", fixture.clock.now());
    loop->start();
    fixture.clock.advance(std::chrono::microseconds::zero());
    EXPECT_EQ(fixture.takeRequests(), std::vector<std::string>{"rates"});
}

TEST_F(DriveLoopTest, TriesAKeyringThatCouldNotBeReadAgainNowAndThen) {
    fixture.secrets.setUnreadable("locked");
    loop.reset();
    fixture.restart();
    fixture.engine().account().readAgain();
    EXPECT_EQ(fixture.engine().account().problem(), "locked");
    loop = std::make_unique<DriveLoop>(
        DriveLoop::Parts{fixture.engine(), store, fixture.context(), fixture.clock, fixture.tasks()});
    fixture.secrets.setUnreadable(std::nullopt);
    loop->becameActive();
    EXPECT_FALSE(fixture.engine().hasCredentials()) << "it was only just asked";
    fixture.clock.advance(std::chrono::seconds(30));
    loop->becameActive();
    EXPECT_TRUE(fixture.engine().hasCredentials());
    EXPECT_EQ(fixture.engine().account().problem(), std::nullopt);
}

TEST_F(DriveLoopTest, EndsItsWaitWithTheWindow) {
    loop->start();
    fixture.clock.advance(std::chrono::seconds(120));
    EXPECT_EQ(fixture.tasks().pending(), 1) << "the loop itself";
    loop.reset();
    EXPECT_EQ(fixture.tasks().pending(), 0);
    fixture.tasks().spawn(fixture.engine().refreshRates(true));
    EXPECT_FALSE(fixture.requests().empty());
}

}  // namespace
}  // namespace vantrell
