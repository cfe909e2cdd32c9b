#include "WindowHouse.h"

#include <set>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(Translation, KnowsThePluralsOfEnglishAndWritesCountsAsTheUserDoes) {
    testing::WindowHouse house;
    AppFilterPicker& filter = *house.windows().root().filter();
    const auto titleWith = [&](std::int64_t apps) {
        std::set<std::int64_t> chosen;
        while (static_cast<std::int64_t>(chosen.size()) < apps) {
            chosen.insert(static_cast<std::int64_t>(chosen.size()));
        }
        house.app().store().setAppFilter(chosen);
        return filter.title().toStdString();
    };
    EXPECT_EQ(titleWith(1), "1 App");
    EXPECT_EQ(titleWith(1200), "1,200 Apps");
}

}  // namespace
}  // namespace vantrell
