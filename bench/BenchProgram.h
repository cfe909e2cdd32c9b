#pragma once

#include "MemoryService.h"
#include "core/MyApp.h"
#include "platform/JsonDefaults.h"
#include "platform/Locale.h"
#include "platform/MemorySecretStore.h"

#include <filesystem>
#include <memory>

namespace vantrell::bench {

/// A clock that stands still at noon of `today` and wakes every sleeper at once.
class StandingClock final : public Clock {
  public:
    [[nodiscard]] Instant now() const override { return today + std::chrono::hours{12}; }
    [[nodiscard]] std::chrono::microseconds monotonic() const override { return {}; }
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::microseconds duration, CancelToken cancel) override;
};

class UtcTime final : public LocalTime {
  public:
    [[nodiscard]] TimeZone zone() const override { return zone_; }

  private:
    TimeZone zone_ = TimeZone::named("UTC").value();
};

/// The program over a store file, put together as the product is, with a service that answers from memory.
class BenchProgram {
  public:
    /// Throws std::runtime_error if the store can't be opened.
    BenchProgram(MemoryService& service, const std::filesystem::path& folder);

    [[nodiscard]] MyApp& app() { return *app_; }
    [[nodiscard]] ModelContext& context() { return app_->context(); }
    [[nodiscard]] EarningsStore& store() { return app_->store(); }
    [[nodiscard]] const Locale& locale() const { return locale_; }

    /// From the request to the save. Throws std::runtime_error unless the report ends as ok.
    void syncSales(ReportFrequency frequency, const std::string& label);
    void syncFinance(const std::string& fiscalPeriod);
    void fetchRates();

  private:
    StandingClock clock_;
    UtcTime localTime_;
    Locale locale_;
    MemorySecretStore secrets_;
    JsonDefaults defaults_;
    std::unique_ptr<MyApp> app_;
};

}  // namespace vantrell::bench
