#include "BenchProgram.h"

#include "data/CredentialsKeychain.h"
#include "keys/KeyPair.h"

#include <stdexcept>
#include <tuple>
#include <utility>

namespace vantrell::bench {
namespace {

template <typename Request>
QCoro::Task<> storeReport(Intake& intake, const ModelContext& context, Request request) {
    std::ignore = co_await intake.take(request);
    const auto stored = Request::records(context).find(request.recordKey());
    if (!stored || stored->record.status() != ReportStatus::ok) {
        throw std::runtime_error("the report " + request.logKey() + " was not stored");
    }
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
    const APICredentials credentials{"3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15", "7QK2MZ8T5W",
                                     generateKeyPair().privatePEM, "60419372"};
    CredentialsKeychain(secrets_).store(credentials);
    client_.setCredentials(credentials);
    auto started = MyApp::start(parts(), folder / "vantrell.sqlite", {origin, origin, {}});
    if (const auto* failure = std::get_if<StartFailure>(&started)) {
        throw std::runtime_error(failure->text);
    }
    app_ = std::move(std::get<std::unique_ptr<MyApp>>(started));
    intake_.emplace(
        IntakeParts{app_->contextToChange(), service_, clock_, worker_, client_, origin, {}, [] {}});
}

QCoro::Task<> BenchProgram::fetchSales(ReportFrequency frequency, std::string label) {
    return storeReport(*intake_, context(), SalesReportRequest{frequency, std::move(label)});
}

// Service, clock and worker answer at once, so that each of these has ended when it returns.

void BenchProgram::syncSales(ReportFrequency frequency, const std::string& label) {
    app_->tasks().spawn(fetchSales(frequency, label));
}

void BenchProgram::syncFinance(const std::string& fiscalPeriod) {
    app_->tasks().spawn(storeReport(*intake_, context(), FinanceReportRequest{fiscalPeriod}));
}

void BenchProgram::fetchRates() {
    app_->tasks().spawn(app_->engine().refreshRates(true));
}

}  // namespace vantrell::bench
