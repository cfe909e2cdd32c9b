#include "testing/AccountFile.h"

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

}  // namespace

AccountFile::AccountFile(const std::filesystem::path& file) {
    std::ifstream text(file);
    for (std::string line; std::getline(text, line) && !line.starts_with('>');) {
        std::istringstream words(line);
        std::string word;
        if (line.starts_with("    ")) {
            reports_.back().lines.push_back(line);
        } else if (!(words >> word) || word == "#") {
            continue;
        } else if (word == "rates") {
            rates_ = ratesOf(words);
        } else if (word == "days") {
            words >> firstDay >> lastDay;
        } else if (word == "apps") {
            apps = {std::istream_iterator<std::int64_t>(words), {}};
        } else if (word == "locale") {
            words >> locale;
        } else {
            words >> reports_.emplace_back(Report{.kind = word}).date >> reports_.back().status >>
                reports_.back().fetched;
        }
    }
}

void AccountFile::storeIn(ShortReports& store) const {
    if (!rates_.empty()) {
        store.rates(rates_);
    }
    for (const Report& report : reports_) {
        storeReport(store, report);
    }
}

void AccountFile::storeReport(ShortReports& store, const Report& report) {
    const ReportStatus status = reportStatus(report.status);
    if (report.kind == "payments") {
        std::vector<Payment> payments;
        std::ranges::transform(report.lines, std::back_inserter(payments), paymentOf);
        store.payments(report.date, payments, status);
        return;
    }
    std::string frequency = report.kind;
    std::ranges::transform(frequency, frequency.begin(), [](char letter) { return std::toupper(letter); });
    std::vector<Line> sales;
    std::ranges::transform(report.lines, std::back_inserter(sales), lineOf);
    store.report(reportFrequency(frequency).value(), report.date, sales, status, report.fetched);
}

}  // namespace vantrell::testing
