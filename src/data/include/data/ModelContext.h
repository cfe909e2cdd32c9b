#pragma once

#include "data/FileCheck.h"
#include "data/LineMappings.h"
#include "data/RecordMappings.h"
#include "data/StoreHealth.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vantrell {

/// How far the dictionaries had come at some time.
struct DictionarySizes {
    std::size_t texts = 0;
    std::size_t offers = 0;
    std::size_t bytes = 0;  ///< of memory, about
};

/// The records of the store with their pending changes. Every reader sees a change at once; `save` makes all
/// of them durable in one transaction or none. After a save that failed they wait for the next one, which
/// begins by removing what may yet stand in the file of the one that failed.
///
/// Main thread only. Lines that can't be read are left out and told by `health`; all else is in memory and
/// can't fail.
class ModelContext {
  public:
    /// Reads everything but the lines, and holds the numbers of lines against what the reports say. Throws
    /// SqliteError where the store can't be shown even in part.
    ModelContext(SqliteDatabase& database, std::shared_ptr<FileCheck> fileCheck);
    ModelContext(const ModelContext&) = delete;
    ModelContext& operator=(const ModelContext&) = delete;

    [[nodiscard]] RecordTable<SalesReport>& salesReports() { return salesReports_; }
    [[nodiscard]] RecordTable<FinanceReport>& financeReports() { return financeReports_; }
    [[nodiscard]] RecordTable<RateSet>& rateSets() { return rateSets_; }
    [[nodiscard]] RecordTable<SyncLogEntry>& syncLog() { return syncLog_; }

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

    /// The stored lines by report, in the order of frequency, report date and file, with texts as numbers of
    /// `texts` and offers as numbers of `offers`. A batch never changes: other lines for the same report come
    /// as another batch.
    [[nodiscard]] LineTable<SalesLine>& salesLines() { return salesLines_; }
    [[nodiscard]] LineTable<FinanceLine>& financeLines() { return financeLines_; }
    [[nodiscard]] const TextDictionary& texts() const { return *texts_; }
    /// For those whose texts must outlive the context.
    [[nodiscard]] std::shared_ptr<const TextDictionary> sharedTexts() const { return texts_; }
    [[nodiscard]] const OfferDictionary& offers() const { return offers_; }

    /// Whole records, in the order of the store; for exports and checks, since they are large.
    [[nodiscard]] std::vector<SalesRow> fetchSalesRows();
    [[nodiscard]] std::vector<FinanceRow> fetchFinanceRows();

    /// Whether what is pending could be stored and what is stored could be read.
    [[nodiscard]] StoreHealth& health() { return health_; }

    [[nodiscard]] bool hasChanges() const;
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
    void checkCounts();
    [[nodiscard]] bool mayWrite() const { return !savesHeld_ && !health_.isDamaged(); }
    [[nodiscard]] StoreError failed(StoreError error);
    void takeBack(const ReportName& report);
    void begin();
    void removeUnsaved();
    void write();
    void committed();
    void rollBack();

    SqliteDatabase& database_;
    std::shared_ptr<FileCheck> fileCheck_;
    StoreHealth health_;
    std::shared_ptr<TextDictionary> texts_;
    OfferDictionary offers_;
    RecordTable<SalesReport> salesReports_;
    RecordTable<FinanceReport> financeReports_;
    RecordTable<RateSet> rateSets_;
    RecordTable<SyncLogEntry> syncLog_;
    LineTable<SalesLine> salesLines_;
    LineTable<FinanceLine> financeLines_;
    // Open from the first line written ahead to the save.
    std::optional<SqliteTransaction> transaction_;
    // A commit failed, and what it was to make durable may stand in the file or not.
    bool isUnsure_ = false;
    bool savesHeld_ = false;
};

}  // namespace vantrell
