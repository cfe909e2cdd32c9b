#pragma once

#include "data/FinanceRow.h"
#include "data/SalesRow.h"
#include "data/StoreHealth.h"
#include "data/StoreParts.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vantrell {

class FileCheck;
class SqliteTransaction;

/// How far the dictionaries had come at some time.
struct DictionarySizes {
    std::size_t texts = 0;
    std::size_t offers = 0;
    std::size_t bytes = 0;  ///< of memory, about
};

/// The records of the store with their pending changes. Whoever holds it as const reads, and sees every
/// change at once; else `save` makes all changes durable in one transaction or none. After a save that failed
/// they wait for the next one, which begins by removing what may yet stand in the file of the one that
/// failed.
///
/// Main thread only. Lines that can't be read are left out and told by `health`; all else is in memory and
/// can't fail.
class ModelContext {
  public:
    /// Reads everything but the lines, and holds the numbers of lines against what the reports say. Throws
    /// SqliteError where the store can't be shown even in part.
    ModelContext(SqliteDatabase& database, std::shared_ptr<FileCheck> fileCheck);
    ~ModelContext();
    ModelContext(const ModelContext&) = delete;
    ModelContext& operator=(const ModelContext&) = delete;

    [[nodiscard]] const auto& salesReports() const { return *parts_.get<RecordTable<SalesReport>>(); }
    [[nodiscard]] const auto& financeReports() const { return *parts_.get<RecordTable<FinanceReport>>(); }
    [[nodiscard]] const auto& rateSets() const { return *parts_.get<RecordTable<RateSet>>(); }
    [[nodiscard]] const auto& syncLog() const { return *parts_.get<RecordTable<SyncLogEntry>>(); }
    /// The stored lines by report, in the order of frequency, report date and file, with texts as numbers of
    /// `texts` and offers as numbers of `offers`. A batch never changes: other lines for the same report come
    /// as another batch.
    [[nodiscard]] const auto& salesLines() const { return *parts_.get<LineTable<SalesLine>>(); }
    [[nodiscard]] const auto& financeLines() const { return *parts_.get<LineTable<FinanceLine>>(); }
    [[nodiscard]] const auto& texts() const { return *parts_.get<TextDictionary>(); }
    /// For those whose texts must outlive the context.
    [[nodiscard]] std::shared_ptr<const TextDictionary> sharedTexts() const {
        return parts_.get<TextDictionary>();
    }
    [[nodiscard]] const auto& offers() const { return *parts_.get<OfferDictionary>(); }

    /// Whole records, in the order of the store; for exports and checks, since they are large.
    [[nodiscard]] std::vector<SalesRow> fetchSalesRows() const;
    [[nodiscard]] std::vector<FinanceRow> fetchFinanceRows() const;

    /// Whether what is pending could be stored and what is stored could be read.
    [[nodiscard]] const StoreHealth& health() const { return health_; }

    // What follows changes the store.

    [[nodiscard]] auto& salesReports() { return *parts_.get<RecordTable<SalesReport>>(); }
    [[nodiscard]] auto& financeReports() { return *parts_.get<RecordTable<FinanceReport>>(); }
    [[nodiscard]] auto& rateSets() { return *parts_.get<RecordTable<RateSet>>(); }
    [[nodiscard]] auto& syncLog() { return *parts_.get<RecordTable<SyncLogEntry>>(); }
    [[nodiscard]] StoreHealth& health() { return health_; }

    /// How rows are kept, in this order: appended to `lines`, so that a long report can be gone through in
    /// steps.
    void encode(std::span<const SalesRowView> rows, std::vector<SalesLine>& lines);
    void encode(std::span<const ParsedFinanceRow> rows, std::vector<FinanceLine>& lines);

    [[nodiscard]] DictionarySizes dictionarySizes() const;
    /// Takes back what was encoded since then and is not going to be stored.
    void forgetUnsaved(const DictionarySizes& before);

    /// Removes all lines of that sales report and puts `lines` in their place, in this order.
    void replaceSalesLines(const std::string& frequencyRaw, const std::string& reportDate,
                           std::vector<SalesLine> lines);
    /// Likewise for a finance report.
    void replaceFinanceLines(const std::string& region, const std::string& fiscalPeriod,
                             std::vector<FinanceLine> lines);
    // Both with rows that are encoded at once.
    void replaceSalesRows(const std::string& frequencyRaw, const std::string& reportDate,
                          const std::vector<SalesRowView>& rows);
    void replaceFinanceRows(const std::string& region, const std::string& fiscalPeriod,
                            const std::vector<ParsedFinanceRow>& rows);

    [[nodiscard]] bool hasChanges();
    /// Writes some of the pending lines, for the next save to make durable with all else, so that it is
    /// quick. True while there are more: whoever saves a long report calls it until there are none. A failure
    /// undoes what was written ahead, and is left to the save to tell.
    [[nodiscard]] bool writeAhead();
    /// Absent when everything pending is on disk, or waits for the end of a check of the file. A store that
    /// is damaged is never written to. Where one report's lines are refused, they are dropped, the lines
    /// stored before are back, and the error names the report: all else waits for the next save.
    [[nodiscard]] std::optional<StoreError> save();

    /// Looks through the file for damage that the first load doesn't meet; may run on any thread. As long as
    /// saves are held nothing is written, and what is saved waits, so that the check sees one state.
    [[nodiscard]] const std::shared_ptr<FileCheck>& fileCheck() const { return fileCheck_; }
    void holdSaves(bool hold) { savesHeld_ = hold; }

  private:
    template <typename Part>
    [[nodiscard]] Part& own() {
        return *parts_.get<Part>();
    }
    void checkCounts();
    [[nodiscard]] bool mayWrite() const { return !savesHeld_ && !health_.isDamaged(); }
    [[nodiscard]] StoreError failed(StoreError error);
    void takeBack(const ReportName& report);
    void begin();
    void rollBack();

    SqliteDatabase& database_;
    std::shared_ptr<FileCheck> fileCheck_;
    StoreHealth health_;
    StoreParts parts_;
    // Open from the first line written ahead to the save.
    std::unique_ptr<SqliteTransaction> transaction_;
    // A commit failed, and what it was to make durable may stand in the file or not.
    bool isUnsure_ = false;
    bool savesHeld_ = false;
};

}  // namespace vantrell
