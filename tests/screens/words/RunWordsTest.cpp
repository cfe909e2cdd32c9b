#include "screens/words/RunWords.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(RunWords, SayWhatARunDoes) {
    using Part = RunProgress::Part;
    const std::pair<std::optional<RunProgress>, const char*> cases[] = {
        {{}, "Syncing…"},
        {RunProgress{Part::days, "", 0.5}, "Daily reports"},
        {RunProgress{Part::days, "2026-08-14"}, "Daily reports · 2026-08-14"},
        {RunProgress{Part::months}, "Monthly reports"},
        {RunProgress{Part::years}, "Yearly reports"},
        {RunProgress{Part::years, "2024"}, "Yearly reports · 2024"},
        {RunProgress{Part::finance, "2026-03"}, "Finance reports · 2026-03"},
        {RunProgress{Part::refetch, "-2026--%1"}, "Re-fetching -2026--%1"},
        {RunProgress{Part::financeRefetch, "2026-03"}, "Re-fetching finance 2026-03"},
    };
    for (const auto& [progress, words] : cases) {
        EXPECT_EQ(runText(progress), QString::fromUtf8(words));
    }
}

TEST(RunWords, SayWhatEndedARun) {
    using Kind = RunFailure::Kind;
    const std::pair<std::optional<RunFailure>, const char*> cases[] = {
        {{}, ""},
        {RunFailure{Kind::noKey}, "Add your App Store Connect key in Settings first."},
        {RunFailure{Kind::damagedStore}, "The store is damaged, so nothing is fetched into it."},
        {RunFailure{Kind::noMonth}, "Use a month like 2026-08."},
        {RunFailure{Kind::keyRefused, "HTTP 401: %1 no."},
         "Authentication failed — HTTP 401: %1 no.. Check that the key was created under Users and Access → "
         "Integrations → App Store Connect API with the Finance role (an In-App Purchase key will not "
         "work)."},
        {RunFailure{Kind::rateLimited},
         "Rate limited by Apple — the run stopped and will resume on the next sync."},
    };
    for (const auto& [failure, words] : cases) {
        EXPECT_EQ(runText(failure), QString::fromUtf8(words));
    }
}

TEST(RunWords, SayWhatATestOfTheKeyGave) {
    const std::pair<std::optional<ConnectionTest>, const char*> cases[] = {
        {{}, "Enter the Issuer ID, Key ID, key file and vendor number first."},
        {{{response::Success{}, 3}}, "OK — report received (3 data lines)"},
        {{{response::NotYetAvailable{"%1"}}}, "Credentials accepted. Not published yet — %1"},
        {{{response::NoSales{"No."}}}, "Credentials accepted. No sales — No."},
        {{{response::Gone{"No."}}}, "Past retention — No."},
        {{{response::WrongVersion{"1_0", "No."}}}, "Version mismatch — No."},
        {{{response::RateLimited{"No."}}}, "Rate limited — No."},
        {{{response::Failure{"No."}}}, "Failed — No."},
    };
    for (const auto& [test, words] : cases) {
        EXPECT_EQ(connectionText(test), QString::fromUtf8(words));
    }
    EXPECT_EQ(connectionText(ConnectionTest{response::AuthFailure{"No"}}),
              runText(RunFailure{RunFailure::Kind::keyRefused, "No"}));
}

TEST(RunWords, SayWhenARunFinished) {
    const Locale locale{LocaleNames{"en_US", "en_US", "en_US", "en_US", "en_US"}};
    const TimeZone zone = TimeZone::named("Europe/Berlin").value();
    const std::pair<RunKind, const char*> cases[] = {
        {RunKind::sync, "Sync"}, {RunKind::backfill, "Backfill"}, {RunKind::refetch, "Re-fetch"}};
    for (const auto& [kind, name] : cases) {
        EXPECT_EQ(runText(FinishedRun{kind, Instant()}, locale, zone).toStdString(),
                  name + (" finished " + locale.dateAndTime(Instant(), zone)));
    }
    EXPECT_EQ(runText(std::optional<FinishedRun>(), locale, zone), QString());
}

}  // namespace
}  // namespace vantrell
