#pragma once

#include "ReportRequests.h"
#include "base/Clock.h"
#include "base/Worker.h"
#include "net/HttpClient.h"
#include "sync/RunFacts.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// What the intake works with. All that is referred to must outlive it.
struct IntakeParts {
    ModelContext& context;
    HttpClient& http;
    Clock& clock;
    Worker& worker;
    ASCClient& client;
    std::string rateService;          ///< "https://host", no path
    std::stop_token end;              ///< ends what is waited for; nothing is changed any more then
    std::function<void()> onLogged;   ///< the sync log has changed
    std::filesystem::path keptLines;  ///< the folder for lines in whose place nothing comes
    bool othersWrite = false;         ///< another device can have stored the same report meanwhile
};

/// What became of a request.
struct IntakeResult {
    bool isStored = false;                   ///< else all that is new is a line in the log
    std::optional<RunFailure> failure = {};  ///< one that no further request would escape
    std::optional<ReportProblem> problem = {};
};

/// Takes one request to its service and what comes of it into the store: rows, status and log line in one
/// save. A failure of a report is data, and whatever a report costs, it fails by itself.
class Intake {
  public:
    explicit Intake(IntakeParts parts) : parts_(std::move(parts)) {}

    [[nodiscard]] QCoro::Task<IntakeResult> take(SalesReportRequest request);
    [[nodiscard]] QCoro::Task<IntakeResult> take(FinanceReportRequest request);
    [[nodiscard]] QCoro::Task<IntakeResult> take(RatesRequest request);

    /// What can't be saved waits in the context for the next time, and the store's health says why. One
    /// report whose lines are refused keeps those it had, and is no reason to keep all others waiting.
    void save();
    void pruneLog();

  private:
    template <typename Request>
    class OneReport;

    template <typename Request>
    void noteRejected(const Request& request, const std::string& reason);
    void log(std::string key, std::string_view outcome, std::string_view message);
    [[nodiscard]] bool isEnded() const { return parts_.end.stop_requested(); }
    /// Lets the event loop do what waits there.
    [[nodiscard]] QCoro::Task<> breathe();

    const IntakeParts parts_;
};

}  // namespace vantrell
