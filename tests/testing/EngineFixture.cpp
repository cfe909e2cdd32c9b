#include "testing/EngineFixture.h"

#include "testing/PlainClient.h"

#include <QUrl>

#include <gtest/gtest.h>

namespace vantrell::testing {
namespace {

constexpr const char* salesHeader =
    "Provider\tSKU\tTitle\tUnits\tDeveloper Proceeds\tBegin Date\tCurrency of Proceeds\tProduct Type "
    "Identifier\n";
constexpr const char* financeHeader =
    "Start Date\tEnd Date\tVendor Identifier\tQuantity\tExtended Partner Share\tPartner Share Currency\n";

template <typename Record>
void keep(RecordTable<Record>& records, const std::string& key, const Record& record) {
    if (const auto found = records.find(key)) {
        records.update(found->id, record);
    } else {
        records.insert(record);
    }
}

ModelContext* opened(StoreFixture& store, const std::string& vfs, const std::string& sql) {
    if (!sql.empty()) {
        store.open();
        store.close();
        changed(store.file(), sql);
    }
    return store.open(vfs);
}

}  // namespace

EngineFixture::EngineFixture(const std::string& vfs, const std::string& sql)
    : context_(opened(store_, vfs, sql)) {
    answers["rates"] = HttpResponse{200, R"({"result":"success","rates":{"USD":1,"EUR":0.9}})"};
    http.respond = [this](const HttpRequest& request) {
        const auto answer = answers.find(shortForm(request));
        return answer == answers.end() ? otherwise : answer->second;
    };
    CredentialsKeychain(secrets).store({"issuer", "key", generateKeyPair().privatePEM, "6041"});
    makeEngine(true);
}

void EngineFixture::restart(bool othersWrite) {
    engine_.reset();
    context_ = store_.open();
    makeEngine(othersWrite);
}

void EngineFixture::makeEngine(bool othersWrite) {
    engine_ = std::make_unique<SyncEngine>(
        SyncEngineParts{*context_, http, clock, worker, localTime, secrets, defaults},
        SyncEngineSettings{.reportService = "https://reports.test",
                           .rateService = "https://rates.test",
                           .keptLines = keptLines(),
                           .othersWrite = othersWrite});
}

std::string EngineFixture::shortForm(const HttpRequest& request) {
    const std::string url = QUrl::fromPercentEncoding(request.url.c_str()).toStdString();
    const auto item = [&url](const std::string& name) {
        const auto start = url.find(name + "=") + name.size() + 1;
        return url.substr(start, url.find('&', start) - start);
    };
    if (url.find("/v1/salesReports") != std::string::npos) {
        return item("filter[frequency]") + " " + item("filter[reportDate]");
    }
    if (url.find("/v1/financeReports") != std::string::npos) {
        return "FINANCE " + item("filter[reportDate]");
    }
    if (url.find("/lookup") != std::string::npos) {
        return "icons " + item("id");
    }
    EXPECT_EQ(url, "https://rates.test/v6/latest/USD");
    EXPECT_EQ(std::ranges::find(request.headers, "Authorization", &HttpHeader::name), request.headers.end());
    return "rates";
}

void EngineFixture::run(QCoro::Task<> task) {
    tasks_.spawn(std::move(task));
    EXPECT_EQ(tasks_.pending(), 0) << "with scripted answers and virtual time a run ends at once";
}

std::vector<std::string> EngineFixture::requests() const {
    std::vector<std::string> result;
    for (std::size_t index = taken_; index < http.requests.size(); ++index) {
        result.push_back(shortForm(http.requests[index]));
    }
    return result;
}

std::vector<std::string> EngineFixture::takeRequests() {
    auto result = requests();
    taken_ = http.requests.size();
    return result;
}

void EngineFixture::store(ReportFrequency frequency, const std::string& date, ReportStatus status,
                          Instant fetchedAt) {
    SalesReport report;
    report.frequencyRaw = rawText(frequency);
    report.reportDate = date;
    report.setStatus(status);
    report.fetchedAt = fetchedAt;
    report.rowCount = 1;
    report.message = "before";
    keep(context_->salesReports(), salesReportKey(report.frequencyRaw, date), report);
    context_->replaceSalesRows(report.frequencyRaw, date, {sale(1, "1")});
}

void EngineFixture::storeFinance(const std::string& period, ReportStatus status) {
    FinanceReport report;
    report.fiscalPeriod = period;
    report.setStatus(status);
    keep(context_->financeReports(), financeReportKey(report.region, period), report);
}

SalesReport EngineFixture::daily(const std::string& date) {
    const auto found = context_->salesReports().find(salesReportKey("DAILY", date));
    return found ? found->record : SalesReport{.statusRaw = "no record"};
}

std::vector<std::string> EngineFixture::log() {
    std::vector<std::string> result;
    for (const auto& [id, entry] : context_->syncLog().all()) {
        result.push_back(entry.key + ": " + entry.outcome);
    }
    return result;
}

HttpResult EngineFixture::error(int status, const std::string& detail) {
    return HttpResponse{status, R"({"errors":[{"title":"T","detail":")" + detail + R"("}]})"};
}

HttpResult EngineFixture::sales(int lines) {
    std::string text = salesHeader;
    for (int line = 0; line < lines; ++line) {
        text += "APPLE\tSKU\tTitle\t1\t0.70\t11/21/2026\tEUR\t1F\n";
    }
    return HttpResponse{200, text};
}

HttpResult EngineFixture::finance(const std::string& lines) {
    return HttpResponse{200, financeHeader + lines};
}

}  // namespace vantrell::testing
