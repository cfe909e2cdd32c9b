#pragma once

#include "base/TaskScope.h"
#include "calendar/DayKey.h"
#include "keys/KeyPair.h"
#include "secrets/MemorySecretStore.h"
#include "sync/SyncEngine.h"
#include "testing/FixedLocalTime.h"
#include "testing/HeldWorker.h"
#include "testing/ManualClock.h"
#include "testing/MemoryDefaults.h"
#include "testing/ScriptedHttp.h"
#include "testing/StoreFixture.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vantrell::testing {

/// An engine over a real store, with a report service that answers from a table and time that stands still.
/// The clock begins on 22 November 2026 at noon UTC, in Berlin.
class EngineFixture {
  public:
    /// Over a file layer, and over a new store that a plain client has changed by `sql`.
    explicit EngineFixture(const std::string& vfs = {}, const std::string& sql = {});

    SyncEngine& engine() { return *engine_; }
    ModelContext& context() { return *context_; }
    TaskScope& tasks() { return tasks_; }
    void run(QCoro::Task<> task);

    /// The folder for lines in whose place nothing comes.
    [[nodiscard]] std::filesystem::path keptLines() const { return store_.file().parent_path() / "backup"; }

    /// The engine goes away as at the end of the program; the store stays.
    void destroyEngine() { engine_.reset(); }
    /// What is neither saved nor in the secret service is lost, as when the program is killed.
    void restart(bool othersWrite = true);

    /// A request in short: "DAILY 2026-11-21", "FINANCE 2027-01", "rates", "icons 1,2".
    [[nodiscard]] static std::string shortForm(const HttpRequest& request);
    /// What was asked.
    [[nodiscard]] std::vector<std::string> requests() const;
    /// Likewise, without what stands before and from then on.
    std::vector<std::string> takeRequests();

    /// Answers by request as above; `otherwise` for all that aren't named.
    std::map<std::string, HttpResult> answers;
    HttpResult otherwise = notYet();

    void store(ReportFrequency frequency, const std::string& date, ReportStatus status,
               Instant fetchedAt = distantPast);
    void storeFinance(const std::string& period, ReportStatus status);
    [[nodiscard]] SalesReport daily(const std::string& date);
    /// Outcomes of the log, oldest first, as "key: outcome".
    [[nodiscard]] std::vector<std::string> log();

    static HttpResult error(int status, const std::string& detail);
    static HttpResult notYet() { return error(404, "Report is not available yet."); }
    /// A sales report of as many lines, and a finance report.
    static HttpResult sales(int lines);
    static HttpResult finance(const std::string& lines);

    ManualClock clock;
    HeldWorker worker;
    FixedLocalTime localTime{"Europe/Berlin"};
    MemoryDefaults defaults;
    MemorySecretStore secrets;
    ScriptedHttp http;

  private:
    void makeEngine(bool othersWrite);

    StoreFixture store_;
    ModelContext* context_;
    TaskScope tasks_;
    std::unique_ptr<SyncEngine> engine_;
    std::size_t taken_ = 0;
};

}  // namespace vantrell::testing
