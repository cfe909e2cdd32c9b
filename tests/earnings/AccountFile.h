#pragma once

#include "testing/EarningsFixture.h"

namespace vantrell::testing {

/// An account that a test writes down as a text: rates, reports with their lines in short, and what is asked
/// about it. An unknown word fails the test.
///
///     rates USD=1 EUR=0.5
///     daily 2026-11-20 ok
///         units=3; proceeds=0.7; title=Notes, Pro
///     payments 2026-12 ok
///         share=7.5; start=2026-08-30
///     days 2026-11-19 2026-11-21
///     apps 1 2
struct AccountFile {
    /// Puts the reports into the store and loads it.
    AccountFile(const std::filesystem::path& file, EarningsFixture& fixture);

    std::string firstDay = "2026-11-15";
    std::string lastDay = "2026-11-21";
    std::set<std::int64_t> apps{1};
};

}  // namespace vantrell::testing
