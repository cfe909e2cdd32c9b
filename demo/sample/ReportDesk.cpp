#include "sample/ReportDesk.h"

#include "sample/ErrorAnswers.h"
#include "sample/FinanceBody.h"
#include "sample/GzipWriter.h"
#include "sample/SalesBody.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

namespace vantrell::sample {

namespace {

constexpr std::string_view vendorFilter = "filter[vendorNumber]";
constexpr std::string_view frequencyFilter = "filter[frequency]";
constexpr std::string_view dateFilter = "filter[reportDate]";
constexpr std::string_view versionFilter = "filter[version]";

/// A filter that every request must have, and its one good value if it has just one.
struct Filter {
    std::string_view name;
    std::string_view value;
};

constexpr std::array<Filter, 5> salesFilters{{{vendorFilter, ""},
                                              {"filter[reportType]", "SALES"},
                                              {"filter[reportSubType]", "SUMMARY"},
                                              {frequencyFilter, ""},
                                              {dateFilter, ""}}};
constexpr std::array<Filter, 4> financeFilters{{{vendorFilter, ""},
                                                {"filter[reportType]", "FINANCIAL"},
                                                {"filter[regionCode]", "ZZ"},
                                                {dateFilter, ""}}};

std::optional<Answer> refusal(const Question& question, std::span<const Filter> filters,
                              std::string_view vendorNumber) {
    for (const auto& filter : filters) {
        const auto value = question.item(filter.name);
        if (value.empty()) {
            return missingParameter(filter.name);
        }
        if (!filter.value.empty() && value != filter.value) {
            return invalidParameter(filter.name, value);
        }
    }
    return question.item(vendorFilter) == vendorNumber ? std::nullopt : std::optional{wrongVendor()};
}

// Digits, an underscore and digits.
bool isVersion(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto underscore = text.find('_');
    return underscore != std::string_view::npos && underscore > 0 && underscore + 1 < text.size() &&
           std::ranges::all_of(text.substr(0, underscore), isDigit) &&
           std::ranges::all_of(text.substr(underscore + 1), isDigit);
}

std::optional<Answer> refusedVersion(std::string_view asked, std::string_view latest) {
    if (asked.empty() || asked == latest) {
        return std::nullopt;
    }
    return isVersion(asked) ? otherVersion(latest) : invalidParameter(versionFilter, asked);
}

// Days come without a name in their header, longer reports with one.
std::string fileName(ReportKind kind, const Question& question) {
    if (kind == ReportKind::daily) {
        return {};
    }
    return std::string{question.item(vendorFilter)} + "_" + std::string{question.item(dateFilter)} + ".txt";
}

}  // namespace

ReportDesk::ReportDesk(const SampleAccount& account, std::string vendorNumber)
    : account_(account), vendorNumber_(std::move(vendorNumber)) {}

Answer ReportDesk::sales(const Question& question, Instant now) const {
    if (auto refused = refusal(question, salesFilters, vendorNumber_)) {
        return *std::move(refused);
    }
    const auto kind = salesReportKind(question.item(frequencyFilter));
    if (!kind) {
        return invalidParameter(frequencyFilter, question.item(frequencyFilter));
    }
    const auto days = reportDays(*kind, question.item(dateFilter));
    if (!days) {
        return invalidParameter(dateFilter, question.item(dateFilter));
    }
    if (auto refused = refusedVersion(question.item(versionFilter), versionOf(*kind, *days))) {
        return *std::move(refused);
    }
    return report(*kind, *days, question, now);
}

Answer ReportDesk::finance(const Question& question, Instant now) const {
    if (auto refused = refusal(question, financeFilters, vendorNumber_)) {
        return *std::move(refused);
    }
    const auto days = reportDays(ReportKind::finance, question.item(dateFilter));
    if (!days) {
        return invalidParameter(dateFilter, question.item(dateFilter));
    }
    return report(ReportKind::finance, *days, question, now);
}

Answer ReportDesk::report(ReportKind kind, const DateRange& days, const Question& question,
                          Instant now) const {
    switch (publication_.availability(kind, days, now)) {
        case Availability::notYet:
            return notYetAvailable(kind);
        case Availability::noLonger:
            return noLongerAvailable();
        case Availability::published:
            break;
    }
    const auto body = kind == ReportKind::finance ? financeBody(account_, days) : salesBody(account_, days);
    const bool headingAlone = std::ranges::count(body, '\n') == 1;
    return headingAlone ? noSales() : Answer{200, "application/a-gzip", gzip(body, fileName(kind, question))};
}

}  // namespace vantrell::sample
