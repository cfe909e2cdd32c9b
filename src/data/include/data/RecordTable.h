#pragma once

#include "data/Reports.h"
#include "data/Sqlite.h"
#include "data/StoreHealth.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace vantrell {

/// Tells two records of one kind apart, also where all their properties are equal.
using RecordID = std::int64_t;

template <typename Record>
struct Stored {
    RecordID id;
    Record record;
};

/// How one kind of record lies in its table. A specialisation gives the SQL and moves values:
/// `select` (id first), `insert`, `update` and `remove` with the id as last parameter, `removeAfter` an id,
/// `write`, `read` and `key`, the values by which a record is found, and perhaps the `messageColumn`.
template <typename Record>
struct RecordMapping;

/// All records of one kind, held in memory with their pending changes. A change is seen at once by every
/// reader and is written by the next save; `committed` forgets what a save has written.
///
/// Keys are not unique: of several records with one key, the first one stored is found.
template <typename Record>
class RecordTable {
  public:
    /// Reads what is stored; records that can't be read are told to `health` and left out. Throws SqliteError
    /// where there is no such table.
    RecordTable(SqliteDatabase& database, StoreHealth& health) : database_(database) {
        auto select = database_.prepare(RecordMapping<Record>::select);
        try {
            while (select.step()) {
                if (const RecordID id = select.integer(0); id > 0 && id < mostBelievable) {
                    add(id, RecordMapping<Record>::read(select));
                    noteCutMessage(id, select);
                } else {
                    health.addDamage("a record has a number that was never given");
                }
            }
        } catch (const SqliteError& error) {
            health.addDamage(error.what());
        }
        savedID_ = lastID_;
    }
    RecordTable(const RecordTable&) = delete;
    RecordTable& operator=(const RecordTable&) = delete;

    /// In the order in which they were first stored.
    [[nodiscard]] const std::map<RecordID, Record>& all() const { return records_; }

    [[nodiscard]] std::optional<Stored<Record>> find(const std::string& key) const {
        const auto known = ids_.find(key);
        if (known == ids_.end()) {
            return std::nullopt;
        }
        const RecordID id = *known->second.begin();
        return Stored<Record>{id, records_.at(id)};
    }

    RecordID insert(Record record) {
        const RecordID id = ++lastID_;
        add(id, std::move(record));
        inserted_.insert(id);
        return id;
    }

    /// The properties that make up the key stay as they were.
    void update(RecordID id, Record record) {
        auto& known = records_.at(id);
        if (known == record) {
            return;
        }
        known = std::move(record);
        if (!inserted_.contains(id)) {
            updated_.insert(id);
        }
    }

    void remove(RecordID id) {
        const auto known = records_.find(id);
        if (known == records_.end()) {
            return;
        }
        const auto ids = ids_.find(RecordMapping<Record>::key(known->second));
        ids->second.erase(id);
        if (ids->second.empty()) {
            ids_.erase(ids);
        }
        records_.erase(known);
        updated_.erase(id);
        if (inserted_.erase(id) == 0) {
            removed_.insert(id);
        }
    }

    [[nodiscard]] bool hasChanges() const {
        return !inserted_.empty() || !updated_.empty() || !removed_.empty();
    }

    /// Writes the pending changes inside the caller's transaction; throws SqliteError.
    void write() {
        writeEach(RecordMapping<Record>::insert, inserted_);
        writeEach(RecordMapping<Record>::update, updated_);
        if (!removed_.empty()) {
            auto statement = database_.prepare(RecordMapping<Record>::remove);
            for (const RecordID id : removed_) {
                statement.bind(0, id);
                statement.run();
            }
        }
    }

    /// Removes the records of a save whose commit failed, and which may yet stand in the file; inside the
    /// caller's transaction, before anything else is written. Throws SqliteError.
    void removeUnsaved() {
        auto statement = database_.prepare(RecordMapping<Record>::removeAfter);
        statement.bind(0, savedID_);
        statement.run();
    }

    /// To be called when that transaction was committed.
    void committed() {
        savedID_ = lastID_;
        inserted_.clear();
        updated_.clear();
        removed_.clear();
    }

  private:
    // The next save writes it as it is held now, so that only one start has to read all of it.
    void noteCutMessage(RecordID id, const SqliteStatement& row) {
        if constexpr (requires { RecordMapping<Record>::messageColumn; }) {
            if (row.text(RecordMapping<Record>::messageColumn).size() > mostMessageBytes) {
                updated_.insert(id);
            }
        }
    }

    // More than any store will ever count.
    static constexpr RecordID mostBelievable = RecordID{1} << 53U;

    void add(RecordID id, Record record) {
        lastID_ = std::max(lastID_, id);
        ids_[RecordMapping<Record>::key(record)].insert(id);
        records_.emplace(id, std::move(record));
    }

    void writeEach(const char* sql, const std::set<RecordID>& ids) {
        if (ids.empty()) {
            return;
        }
        auto statement = database_.prepare(sql);
        for (const RecordID id : ids) {
            RecordMapping<Record>::write(statement, id, records_.at(id));
        }
    }

    SqliteDatabase& database_;
    std::map<RecordID, Record> records_;
    std::map<std::string, std::set<RecordID>> ids_;
    RecordID lastID_ = 0;
    RecordID savedID_ = 0;  // the highest that surely is in the file
    std::set<RecordID> inserted_;
    std::set<RecordID> updated_;
    std::set<RecordID> removed_;
};

}  // namespace vantrell
