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

}  // namespace
}  // namespace vantrell
