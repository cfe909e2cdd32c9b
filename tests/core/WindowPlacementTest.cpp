#include "core/WindowPlacement.h"
#include "files/AtomicFile.h"
#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(WindowPlacement, ComesBackAsItWasSaved) {
    const testing::TemporaryFolder folder;
    const auto file = folder / "config" / "window.json";
    EXPECT_EQ(loadPlacement(file), std::nullopt);
    const WindowPlacement placement{-1200, 40, 1150, 760, true};
    EXPECT_EQ(savePlacement(file, placement), std::nullopt);
    EXPECT_EQ(loadPlacement(file), placement);
    EXPECT_NE(savePlacement("/proc/window.json", placement), std::nullopt);
}

TEST(WindowPlacement, WhatIsOutOfReasonNeverReachesAWindow) {
    const struct {
        std::string contents;
        std::optional<WindowPlacement> expected;
    } cases[] = {
        {R"({"x":1,"y":2,"width":3,"height":-4})", WindowPlacement{1, 2, 640, 480, false}},
        {R"({"x":-1e300,"y":1e300,"width":1e300,"height":99999,"maximized":"yes"})",
         WindowPlacement{-16384, 16384, 16384, 16384, false}},
        {R"({"x":1,"y":2,"width":"800","height":600})", std::nullopt},
        {"", std::nullopt},
        {"{\"x\":1" + std::string(100'000, ' '), std::nullopt},
    };
    const testing::TemporaryFolder folder;
    for (const auto& row : cases) {
        ASSERT_EQ(writeAtomically(folder / "window.json", row.contents), std::nullopt);
        EXPECT_EQ(loadPlacement(folder / "window.json"), row.expected) << row.contents.substr(0, 80);
    }
}

}  // namespace
}  // namespace vantrell
