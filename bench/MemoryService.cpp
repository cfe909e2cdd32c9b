#include "MemoryService.h"

#include "sample/Rates.h"

#include <string_view>
#include <utility>

#include <QUrl>
#include <QUrlQuery>

namespace vantrell::bench {
namespace {

std::string reportKey(std::string_view frequency, std::string_view date) {
    return std::string(frequency).append(" ").append(date);
}

/// The report that a request asks for.
std::string requestedReport(const QUrl& url) {
    std::string frequency;
    std::string date;
    for (const auto& [name, value] : QUrlQuery(url).queryItems(QUrl::FullyDecoded)) {
        if (name == QLatin1String("filter[frequency]")) {
            frequency = value.toStdString();
        } else if (name == QLatin1String("filter[reportDate]")) {
            date = value.toStdString();
        }
    }
    return reportKey(frequency, date);
}

}  // namespace

MemoryService::MemoryService(const BenchData& data) {
    for (const SalesReportBody& report : data.sales) {
        setSalesReport(report.frequency, report.label, report.gzip);
    }
    for (const FinanceReportBody& report : data.finance) {
        bodyByReport_.insert_or_assign(reportKey({}, report.fiscalPeriod), report.gzip);
    }
}

void MemoryService::setSalesReport(ReportFrequency frequency, const std::string& label, std::string gzip) {
    bodyByReport_.insert_or_assign(reportKey(rawText(frequency), label), std::move(gzip));
}

QCoro::Task<HttpResult> MemoryService::get(HttpRequest request, std::stop_token /*cancel*/) {
    const QUrl url(QString::fromStdString(request.url));
    if (!url.path().startsWith(QLatin1String("/v1/"))) {
        co_return HttpResponse{200, sample::ratesBody()};
    }
    const auto body = bodyByReport_.find(requestedReport(url));
    if (body == bodyByReport_.end()) {
        co_return HttpFailure{};
    }
    co_return HttpResponse{200, body->second};
}

}  // namespace vantrell::bench
