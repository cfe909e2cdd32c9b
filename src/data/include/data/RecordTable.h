#pragma once

#include "data/RateSet.h"
#include "data/Reports.h"
#include "data/SyncLogEntry.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace vantrell {

class SqliteDatabase;
struct OpenStore;

/// Tells two records of one kind apart, also where all their properties are equal.
using RecordID = std::int64_t;

template <typename Record>
struct Stored {
    RecordID id;
    Record record;
};

/// The key by which a sales report is found.
[[nodiscard]] std::string salesReportKey(std::string_view frequencyRaw, std::string_view reportDate);
/// The key by which a finance report is found.
[[nodiscard]] std::string financeReportKey(std::string_view region, std::string_view fiscalPeriod);

/// All records of one kind, held in memory with their pending changes. A change is seen at once by every
/// reader and is written by the next save.
///
/// Keys are not unique: of several records with one key, the first one stored is found.
template <typename Record>
class RecordTable {
  public:
    /// Reads what is stored; records that can't be read are told to the store's health and left out. Throws
    /// SqliteError where there is no such table.
    explicit RecordTable(const OpenStore& store);
    RecordTable(const RecordTable&) = delete;
    RecordTable& operator=(const RecordTable&) = delete;

    /// In the order in which they were first stored.
    [[nodiscard]] const std::map<RecordID, Record>& all() const { return records_; }
    [[nodiscard]] std::optional<Stored<Record>> find(const std::string& key) const;

    RecordID insert(Record record);
    /// The properties that make up the key stay as they were.
    void update(RecordID id, Record record);
    void remove(RecordID id);

  private:
    friend class ModelContext;

    [[nodiscard]] bool hasChanges() const { return !changed_.empty() || !removed_.empty(); }
    /// Writes the pending changes inside the caller's transaction; throws SqliteError.
    void write();
    /// Removes the records of a save whose commit failed, and which may yet stand in the file; inside the
    /// caller's transaction, before anything else is written. Throws SqliteError.
    void removeUnsaved();
    /// To be called when that transaction was committed: forgets what was written.
    void committed();
    void add(RecordID id, Record record);

    SqliteDatabase& database_;
    std::map<RecordID, Record> records_;
    std::map<std::string, std::set<RecordID>> ids_;
    RecordID lastID_ = 0;
    RecordID savedID_ = 0;  // the highest that surely is in the file
    std::set<RecordID> changed_;
    std::set<RecordID> removed_;
};

}  // namespace vantrell
