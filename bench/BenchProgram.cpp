#include "BenchProgram.h"

#include "data/CredentialsKeychain.h"
#include "keys/KeyPair.h"

#include <stdexcept>

namespace vantrell::bench {
namespace {

constexpr const char* origin = "https://bench.example";

void expectOk(ReportStatus status, const std::string& report) {
    if (status != ReportStatus::ok) {
        throw std::runtime_error("the report " + report + " was not stored");
    }
}

QCoro::Task<> storeSales(SyncEngine& engine, ReportFrequency frequency, std::string label) {
    const ReportStatus status = co_await engine.syncSalesReport(frequency, label, true);
    expectOk(status, label);
}

QCoro::Task<> storeFinance(SyncEngine& engine, std::string fiscalPeriod) {
    const ReportStatus status = co_await engine.syncFinanceReport(fiscalPeriod, true);
    expectOk(status, fiscalPeriod);
}

}  // namespace

QCoro::Task<> StandingClock::sleep(std::chrono::microseconds /*duration*/, std::stop_token /*cancel*/) {
    co_return;
}

BenchProgram::BenchProgram(HttpClient& service, const std::filesystem::path& folder)
    : BenchProgram(service, standingClock_, immediateWorker_, folder) {}

BenchProgram::BenchProgram(HttpClient& service, Clock& clock, Worker& worker,
                           const std::filesystem::path& folder)
    : service_(service),
      clock_(clock),
      worker_(worker),
      locale_({"en_US", "en_US", "en_US", "en_US", "en_US"}),
      defaults_(folder / "defaults.json") {
    CredentialsKeychain(secrets_).store(
        {"3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15", "7QK2MZ8T5W", generateKeyPair().privatePEM, "60419372"});
    auto started = MyApp::start(parts(), folder / "vantrell.sqlite", {origin, origin, {}});
    if (const auto* failure = std::get_if<StartFailure>(&started)) {
        throw std::runtime_error(failure->text);
    }
    app_ = std::move(std::get<std::unique_ptr<MyApp>>(started));
}

// Service, clock and worker answer at once, so that each of these has ended when it returns.

void BenchProgram::syncSales(ReportFrequency frequency, const std::string& label) {
    app_->tasks().spawn(storeSales(app_->engine(), frequency, label));
}

void BenchProgram::syncFinance(const std::string& fiscalPeriod) {
    app_->tasks().spawn(storeFinance(app_->engine(), fiscalPeriod));
}

void BenchProgram::fetchRates() {
    app_->tasks().spawn(app_->engine().refreshRates(true));
}

}  // namespace vantrell::bench
