#pragma once

#include <cstdint>
#include <filesystem>

namespace vantrell::bench {

/// What a fresh process over a filled store measures of its window, painted off-screen by the processor
/// alone; all in milliseconds.
struct WindowFigures {
    double firstFrame = 0;    ///< from the start of the process to the first painted frame
    double screenSwitch = 0;  ///< the slowest screen, from its selection to the frame that shows it
    double filterChange = 0;  ///< the slowest screen, from a new app filter to the frame that shows it
    double openDay = 0;       ///< from the press on yesterday to the frame that shows its sheet
    double longestStall = 0;  ///< the longest absence of the event loop while much is fetched again
};

/// Starts this program again over the store in `folder`. Throws std::runtime_error if it fails.
[[nodiscard]] WindowFigures measureWindow(const std::filesystem::path& folder, std::int64_t dailyLines);

/// What that process does over an account of about `dailyLines` lines a year; it changes the store. Needs a
/// QGuiApplication.
void showWindowFigures(const std::filesystem::path& folder, std::int64_t dailyLines);

}  // namespace vantrell::bench
