#include "data/RecordTable.h"

#include "Layouts.h"
#include "OpenStore.h"
#include "RowWriter.h"

#include <algorithm>
#include <utility>

namespace vantrell {
namespace {

// More than any store will ever count.
constexpr RecordID mostBelievableID = RecordID{1} << 53U;

// Keys are joined with a byte that stands in no label, so that no two pairs give one key.
std::string keyOf(std::string_view first, std::string_view second) {
    std::string key(first);
    key += '\0';
    key += second;
    return key;
}

std::string keyOf(const SalesReport& record) {
    return salesReportKey(record.frequencyRaw, record.reportDate);
}

std::string keyOf(const FinanceReport& record) {
    return financeReportKey(record.region, record.fiscalPeriod);
}

std::string keyOf(const RateSet& record) {
    return record.base;
}

std::string keyOf(const SyncLogEntry& record) {
    return record.key;
}

template <typename Columns>
bool hasCutMessage(const SqliteStatement& row, const Columns& columns) {
    bool isCut = false;
    forEachNumbered(columns, [&](const auto& column, auto index) {
        if constexpr (std::is_same_v<StorageOf<decltype(column)>, storage::Message>) {
            isCut = storage::Message::isCut(row, index + 1);
        }
    });
    return isCut;
}

}  // namespace

std::string salesReportKey(std::string_view frequencyRaw, std::string_view reportDate) {
    return keyOf(frequencyRaw, reportDate);
}

std::string financeReportKey(std::string_view region, std::string_view fiscalPeriod) {
    return keyOf(region, fiscalPeriod);
}

template <typename Record>
RecordTable<Record>::RecordTable(const OpenStore& store) : database_(store.database) {
    using Layout = Layout<Record>;
    auto select = database_.prepare("SELECT id, " + names(Layout::columns) + " FROM " +
                                    std::string(Layout::table) + " ORDER BY id");
    try {
        while (select.step()) {
            const RecordID id = select.integer(0);
            if (id <= 0 || id >= mostBelievableID) {
                store.health.addDamage("a record has a number that was never given");
                continue;
            }
            add(id, readRow<Record>(select, Layout::columns, 1));
            // The next save writes it as it is held now, so that only one start has to read all of it.
            if (hasCutMessage(select, Layout::columns)) {
                changed_.insert(id);
            }
        }
    } catch (const SqliteError& error) {
        store.health.addDamage(error.what());
    }
    savedID_ = lastID_;
}

template <typename Record>
std::optional<Stored<Record>> RecordTable<Record>::find(const std::string& key) const {
    const auto known = ids_.find(key);
    if (known == ids_.end()) {
        return std::nullopt;
    }
    const RecordID id = *known->second.begin();
    return Stored<Record>{id, records_.at(id)};
}

template <typename Record>
RecordID RecordTable<Record>::insert(Record record) {
    const RecordID id = lastID_ + 1;
    add(id, std::move(record));
    changed_.insert(id);
    return id;
}

template <typename Record>
void RecordTable<Record>::update(RecordID id, Record record) {
    auto& known = records_.at(id);
    if (known == record) {
        return;
    }
    known = std::move(record);
    changed_.insert(id);
}

template <typename Record>
void RecordTable<Record>::remove(RecordID id) {
    const auto known = records_.find(id);
    if (known == records_.end()) {
        return;
    }
    const auto ids = ids_.find(keyOf(known->second));
    ids->second.erase(id);
    if (ids->second.empty()) {
        ids_.erase(ids);
    }
    records_.erase(known);
    changed_.erase(id);
    if (id <= savedID_) {
        removed_.insert(id);
    }
}

template <typename Record>
void RecordTable<Record>::write() {
    using Layout = Layout<Record>;
    if (!changed_.empty()) {
        auto insert = database_.prepare(insertSQL(Layout::table, Layout::columns, "INSERT OR REPLACE"));
        RowWriter writer(insert, Layout::columns);
        for (const RecordID id : changed_) {
            writer.write(id, records_.at(id));
        }
    }
    for (const RecordID id : removed_) {
        database_.run("DELETE FROM " + std::string(Layout::table) + " WHERE id = ?", id);
    }
}

template <typename Record>
void RecordTable<Record>::removeUnsaved() {
    database_.run("DELETE FROM " + std::string(Layout<Record>::table) + " WHERE id > ?", savedID_);
}

template <typename Record>
void RecordTable<Record>::committed() {
    savedID_ = lastID_;
    changed_.clear();
    removed_.clear();
}

template <typename Record>
void RecordTable<Record>::add(RecordID id, Record record) {
    lastID_ = std::max(lastID_, id);
    ids_[keyOf(record)].insert(id);
    records_.emplace(id, std::move(record));
}

template class RecordTable<SalesReport>;
template class RecordTable<FinanceReport>;
template class RecordTable<RateSet>;
template class RecordTable<SyncLogEntry>;

}  // namespace vantrell
