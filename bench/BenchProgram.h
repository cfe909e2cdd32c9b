#pragma once

#include "Intake.h"
#include "MemoryService.h"
#include "base/SystemClock.h"
#include "core/MyApp.h"
#include "files/JsonDefaults.h"
#include "locale/Locale.h"
#include "secrets/MemorySecretStore.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace vantrell::bench {

/// A clock that stands still at noon of `today` and wakes every sleeper at once.
class StandingClock final : public Clock {
  public:
    [[nodiscard]] Instant now() const override { return today + std::chrono::hours{12}; }
    [[nodiscard]] std::chrono::microseconds monotonic() const override { return {}; }
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::microseconds duration, std::stop_token cancel) override;
};

/// A clock that stands at the same noon for whoever asks for the date, and otherwise goes on.
class NoonClock final : public Clock {
  public:
    [[nodiscard]] Instant now() const override { return today + std::chrono::hours{12}; }
    [[nodiscard]] std::chrono::microseconds monotonic() const override { return real_.monotonic(); }
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::microseconds duration, std::stop_token cancel) override {
        return real_.sleep(duration, std::move(cancel));
    }

  private:
    SystemClock real_;
};

class UtcTime final : public LocalTime {
  public:
    [[nodiscard]] TimeZone zone() const override { return zone_; }

  private:
    TimeZone zone_ = TimeZone::named("UTC").value();
};

inline constexpr const char* origin = "https://bench.example";

/// The program over a store file, put together as the product is, with a service that answers from memory.
class BenchProgram {
  public:
    /// Throws std::runtime_error if the store can't be opened.
    BenchProgram(HttpClient& service, const std::filesystem::path& folder);
    BenchProgram(HttpClient& service, Clock& clock, Worker& worker, const std::filesystem::path& folder);

    [[nodiscard]] MyAppParts parts() {
        return {service_, clock_, worker_, localTime_, locale_, secrets_, defaults_};
    }

    [[nodiscard]] MyApp& app() { return *app_; }
    [[nodiscard]] const ModelContext& context() const { return app_->context(); }
    [[nodiscard]] EarningsStore& store() { return app_->store(); }
    [[nodiscard]] const Locale& locale() const { return locale_; }

    /// From the request to the save. Throws std::runtime_error unless the report ends as ok.
    [[nodiscard]] QCoro::Task<> fetchSales(ReportFrequency frequency, std::string label);
    void syncSales(ReportFrequency frequency, const std::string& label);
    void syncFinance(const std::string& fiscalPeriod);
    void fetchRates();

  private:
    HttpClient& service_;
    StandingClock standingClock_;
    Clock& clock_;
    ImmediateWorker immediateWorker_;
    Worker& worker_;
    UtcTime localTime_;
    Locale locale_;
    MemorySecretStore secrets_;
    JsonDefaults defaults_;
    ASCClient client_{service_, clock_, origin};
    std::unique_ptr<MyApp> app_;
    std::optional<Intake> intake_;
};

}  // namespace vantrell::bench
