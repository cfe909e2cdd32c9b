#include "trial/RunSummary.h"

#include "screens/HeadlineFigures.h"

#include <array>
#include <iomanip>
#include <map>
#include <string>

namespace vantrell {
namespace {

using enum ReportStatus;
constexpr std::array allStatuses{ok, empty, pending, unavailable, error, missing};
using CountsByStatus = std::map<ReportStatus, int>;

constexpr int kindWidth = 10;
constexpr int countWidth = 12;

void writeCounts(const std::string& kind, const CountsByStatus& counts, std::ostream& output) {
    output << std::left << std::setw(kindWidth) << kind << std::right;
    for (const ReportStatus status : allStatuses) {
        const auto count = counts.find(status);
        output << std::setw(countWidth) << (count == counts.end() ? 0 : count->second);
    }
    output << "\n";
}

void writeReports(const ModelContext& context, std::ostream& output) {
    std::map<ReportFrequency, CountsByStatus> sales;
    for (const auto& [id, report] : context.salesReports().all()) {
        ++sales[reportFrequency(report.frequencyRaw).value_or(ReportFrequency::daily)][report.status()];
    }
    CountsByStatus finance;
    for (const auto& [id, report] : context.financeReports().all()) {
        ++finance[report.status()];
    }
    output << std::left << std::setw(kindWidth) << "Reports" << std::right;
    for (const ReportStatus status : allStatuses) {
        output << std::setw(countWidth) << rawText(status);
    }
    output << "\n";
    for (const ReportFrequency frequency :
         {ReportFrequency::daily, ReportFrequency::monthly, ReportFrequency::yearly}) {
        writeCounts(std::string(lowerCaseText(frequency)), sales[frequency], output);
    }
    writeCounts("finance", finance, output);
}

void writeFigure(const HeadlineFigure& figure, const CurrencyConverter& converter, const Locale& locale,
                 std::ostream& output) {
    const auto total = converter.total(figure.stats.proceedsByCurrency);
    output << "\n"
           << figure.title.toStdString()
           << (figure.subtitle.isEmpty() ? "" : " · " + figure.subtitle.toStdString()) << ": "
           << locale.money(total.amount, converter.displayCurrency);
    if (!total.withoutRate.empty()) {
        output << ", not counting";
        for (const std::string& code : total.withoutRate) {
            output << " " << code;
        }
    }
    const AggregateStats& stats = figure.stats;
    output << "\n  app units " << locale.count(stats.appUnits) << ", in-app " << locale.count(stats.iapUnits)
           << ", updates " << locale.count(stats.updateUnits) << ", redownloads "
           << locale.count(stats.redownloadUnits) << ", refunded " << locale.count(stats.refundedUnits)
           << "\n";
    for (const auto& [code, amount] : stats.proceedsByCurrency) {
        output << "  " << (code.empty() ? "(none)" : code) << " " << amount.text() << "\n";
    }
}

}  // namespace

void writeRunSummary(MyApp& app, const Locale& locale, std::ostream& output) {
    writeReports(app.context(), output);
    for (const HeadlineFigure& figure : headlineFigures(app.store(), locale)) {
        writeFigure(figure, app.store().converter(), locale, output);
    }
}

}  // namespace vantrell
