#include "ScreenFixture.h"
#include "screens/about/Diagnostics.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(Diagnostics, TellHowThingsStandAndNothingThatIsTheUsersAlone) {
    testing::ScreenFixture fixture;
    fixture.store(ReportFrequency::daily, "2026-11-20", ReportStatus::error);
    fixture.store(ReportFrequency::daily, "2026-11-21", ReportStatus::ok);
    const std::string text = diagnosticsText(fixture.parts());
    for (const char* line : {"\nLanguage: en-US, zone Europe/Berlin\n", "\nStore: well\n",
                             "\nReports, daily: 1 error 1 ok\n", "\nKey: stored\n", "\nLast run: none\n"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line << "in\n" << text;
    }
    const APICredentials& credentials = fixture.engine().account().credentials();
    for (const std::string& secret : {credentials.issuerID, credentials.keyID, credentials.vendorNumber}) {
        ASSERT_NE(secret, "");
        EXPECT_EQ(text.find(secret), std::string::npos) << secret;
    }
}

}  // namespace
}  // namespace vantrell
