#include "testing/EngineFixture.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EngineFixture;

TEST(Credentials, AreReadAtTheStartSavedAndForgotten) {
    EngineFixture fixture;
    SyncEngine& engine = fixture.engine();
    EXPECT_TRUE(engine.hasCredentials());
    fixture.run(engine.refetchDay(*dateFromDayKey("2026-11-20")));
    engine.account().save({"issuer", "key", "no key", ""});
    EXPECT_FALSE(engine.hasCredentials());
    EXPECT_FALSE(QCoro::waitFor(engine.account().testConnection()));
    engine.account().save({"issuer", "key", "no key!", "6041"});
    const auto test = QCoro::waitFor(engine.account().testConnection());
    EXPECT_TRUE(std::holds_alternative<response::AuthFailure>(test.value().answer))
        << "the token of the old key is not used again";
    engine.account().remove();
    EXPECT_FALSE(engine.hasCredentials());
    EXPECT_EQ(fixture.context().salesReports().all().size(), 1U) << "stored reports stay";
}

TEST(Credentials, ThatCanNotBeSavedLeaveTheOldOnesInForce) {
    EngineFixture fixture;
    fixture.secrets.failNextAdd({1, "The keyring is locked"});
    EXPECT_THROW(fixture.engine().account().save({}), CredentialsError);
    EXPECT_TRUE(fixture.engine().hasCredentials());
    fixture.run(fixture.engine().refetchDay(*dateFromDayKey("2026-11-20")));
    EXPECT_EQ(fixture.requests().size(), 1U);
}

}  // namespace
}  // namespace vantrell
