#pragma once

#include "testing/EarningsFixture.h"

namespace vantrell::testing {

/// An account that a test writes down as a text: rates, reports with their status, perhaps the day when they
/// were fetched, and their lines in short, and what is asked about it. An unknown word fails the test.
///
///     rates USD=1 EUR=0.5
///     daily 2026-11-20 ok 2026-11-21
///         units=3; proceeds=0.7; title=Notes, Pro
///     payments 2026-12 ok
///         share=7.5; start=2026-08-30
///     days 2026-11-19 2026-11-21
///     apps 1 2
///     locale de_DE
///
/// A line that begins with ">" ends it.
class AccountFile {
  public:
    explicit AccountFile(const std::filesystem::path& file);

    void storeIn(ShortReports& store) const;

    std::string firstDay = "2026-11-15";
    std::string lastDay = "2026-11-21";
    std::set<std::int64_t> apps{1};
    std::string locale = "en_US";

  private:
    /// A report's heading with the lines that follow it.
    struct Report {
        std::string kind;
        std::string date;
        std::string status = "ok";
        std::string fetched;
        std::vector<std::string> lines;
    };
    static void storeReport(ShortReports& store, const Report& report);

    Rates rates_;
    std::vector<Report> reports_;
};

}  // namespace vantrell::testing
