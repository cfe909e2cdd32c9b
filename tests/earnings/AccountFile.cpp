#include "AccountFile.h"

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace vantrell::testing {
namespace {

/// The fields of a line in short, each of which must be asked for.
class Fields {
  public:
    explicit Fields(const std::string& text) {
        for (std::size_t start = text.find_first_not_of(' '); start < text.size();) {
            const std::size_t end = std::min(text.find("; ", start), text.size());
            const std::string field = text.substr(start, end - start);
            const std::size_t equals = field.find('=');
            values_[field.substr(0, equals)] = field.substr(equals + 1);
            start = end + 2;
        }
    }
    ~Fields() { EXPECT_TRUE(values_.empty()) << values_.begin()->first; }
    Fields(const Fields&) = delete;
    Fields& operator=(const Fields&) = delete;

    std::string text(const char* name, std::string otherwise) {
        const auto field = values_.extract(name);
        return field.empty() ? otherwise : field.mapped();
    }
    std::int64_t number(const char* name) { return std::stoll(text(name, "1")); }

  private:
    std::map<std::string, std::string> values_;
};

Line lineOf(const std::string& text) {
    Fields fields(text);
    return {.appleID = fields.number("id"),
            .productType = fields.text("type", "1F"),
            .units = fields.number("units"),
            .proceeds = fields.text("proceeds", "1"),
            .currency = fields.text("currency", "USD"),
            .title = fields.text("title", ""),
            .sku = fields.text("sku", "app"),
            .parentSKU = fields.text("parent", ""),
            .country = fields.text("country", "US")};
}

Payment paymentOf(const std::string& text) {
    Fields fields(text);
    return {.appleID = fields.number("id"),
            .quantity = fields.number("units"),
            .share = fields.text("share", "1"),
            .currency = fields.text("currency", "USD"),
            .saleOrReturn = fields.text("kind", "S"),
            .start = fields.text("start", ""),
            .end = fields.text("end", "")};
}

Rates ratesOf(std::istringstream& words) {
    Rates rates;
    for (std::string word; words >> word;) {
        rates[word.substr(0, 3)] = std::strtod(word.c_str() + 4, nullptr);
    }
    return rates;
}

/// A report's heading with the lines that follow it.
struct Report {
    std::string kind;
    std::string date;
    std::string status = "ok";
    std::vector<std::string> lines;

    void storeIn(EarningsFixture& fixture) const {
        if (kind == "payments") {
            std::vector<Payment> payments;
            std::ranges::transform(lines, std::back_inserter(payments), paymentOf);
            fixture.payments(date, payments, reportStatus(status));
            return;
        }
        std::string frequency = kind;
        std::ranges::transform(kind, frequency.begin(), [](char letter) { return std::toupper(letter); });
        std::vector<Line> sales;
        std::ranges::transform(lines, std::back_inserter(sales), lineOf);
        fixture.report(reportFrequency(frequency).value(), date, sales, reportStatus(status));
    }
};

}  // namespace

AccountFile::AccountFile(const std::filesystem::path& file, EarningsFixture& fixture) {
    std::ifstream text(file);
    std::vector<Report> reports;
    for (std::string line; std::getline(text, line);) {
        std::istringstream words(line);
        std::string word;
        if (line.starts_with("    ")) {
            reports.back().lines.push_back(line);
        } else if (!(words >> word) || word == "#") {
            continue;
        } else if (word == "rates") {
            fixture.rates(ratesOf(words));
        } else if (word == "days") {
            words >> firstDay >> lastDay;
        } else if (word == "apps") {
            apps = {std::istream_iterator<std::int64_t>(words), {}};
        } else {
            words >> reports.emplace_back(Report{.kind = word}).date >> reports.back().status;
        }
    }
    for (const Report& report : reports) {
        report.storeIn(fixture);
    }
    fixture.reload();
}

}  // namespace vantrell::testing
