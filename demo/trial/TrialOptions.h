#pragma once

#include "base/Instant.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vantrell {

// What a run does: the automatic run, or one named operation in its place.
struct DoAutomaticRun {};
struct DoSync {};
struct DoBackfill {};
struct DoDay {
    CivilDate day;
};
struct DoMonth {
    std::string text;
};
struct DoFinance {
    std::string period;
};
struct DoRates {};
struct DoTest {};
using TrialOperation =
    std::variant<DoAutomaticRun, DoSync, DoBackfill, DoDay, DoMonth, DoFinance, DoRates, DoTest>;

/// The command line of the trial program.
struct TrialOptions {
    /// One run without a window, instead of the window.
    bool once = false;
    std::optional<std::string> service;  ///< an origin; absent for the built-in sample service
    std::optional<std::string> key;      ///< the text to sign with; absent for a fresh key
    std::optional<std::filesystem::path> data;
    TrialOperation operation;
    std::optional<std::string> currency;
    std::optional<std::filesystem::path> exports;  ///< the folder to write the CSV files to, if any
    std::optional<std::filesystem::path> screens;  ///< the folder to write pictures of the screens to, if any
    std::chrono::microseconds pause = std::chrono::milliseconds(150);
};

struct UsageError {
    std::string text;
};

/// Reads the arguments after the program's name. A key file is read here, since one that can't be read is a
/// mistake on the command line.
[[nodiscard]] std::variant<TrialOptions, UsageError> parseTrialOptions(
    const std::vector<std::string>& arguments);

/// What the options are, for the user.
[[nodiscard]] std::string trialUsage();

}  // namespace vantrell
