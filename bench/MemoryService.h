#pragma once

#include "BenchData.h"
#include "net/HttpClient.h"

#include <map>
#include <string>

namespace vantrell::bench {

/// Answers every request at once from memory: with the reports that it was given and with exchange rates.
class MemoryService final : public HttpClient {
  public:
    MemoryService() = default;
    explicit MemoryService(const BenchData& data);

    void setSalesReport(ReportFrequency frequency, const std::string& label, std::string gzip);

    [[nodiscard]] QCoro::Task<HttpResult> get(HttpRequest request, std::stop_token cancel) override;

  private:
    std::map<std::string, std::string> bodyByReport_;  // by frequency, empty for finance, and date
};

}  // namespace vantrell::bench
