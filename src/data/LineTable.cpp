#include "data/LineTable.h"

#include "Layouts.h"
#include "LineRejected.h"
#include "OpenStore.h"
#include "RowWriter.h"
#include "data/ReportFrequency.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <ranges>
#include <string_view>
#include <utility>

namespace vantrell {
namespace {

// More than any report has, and than any store will ever count.
constexpr std::int64_t mostBelievableLines = 10'000'000;
constexpr std::int64_t mostBelievableNumber = std::int64_t{1} << 53U;
// Saved ones, some 15 MB: more than come in between two reloads.
constexpr std::size_t mostKeptLines = 200'000;
constexpr std::size_t linesOfBlock = 512;

// Known frequencies in their order, all else last.
int groupRank(std::string_view group) {
    const auto frequency = reportFrequency(group);
    return frequency ? static_cast<int>(*frequency) : static_cast<int>(ReportFrequency::yearly) + 1;
}

std::string sql(std::string_view before, std::string_view table, std::string_view after) {
    return std::string(before).append(table).append(after);
}

// The columns that say which report the lines of a range belong to.
template <typename Line>
std::string batchColumns() {
    return sql("id, ", Layout<Line>::group, ", ") + sql("", Layout<Line>::label, ", firstLine, lineCount");
}

// A failure of what is inserted tells whose lines they were.
template <typename Insert>
void naming(const LineBatch& batch, Insert insert) {
    try {
        insert();
    } catch (const SqliteError& error) {
        throw LineRejected(error, {batch.group, batch.label});
    }
}

}  // namespace

/// Prepared when first needed, and kept.
template <typename Line>
struct LineTable<Line>::Statements {
    std::optional<SqliteStatement> selectLines;
    std::optional<SqliteStatement> selectFigures;
    std::optional<SqliteStatement> insertLine;
};

template <typename Line>
LineTable<Line>::LineTable(const OpenStore& store)
    : database_(store.database), health_(store.health), statements_(std::make_unique<Statements>()) {
    auto select = database_.prepare(sql("SELECT " + batchColumns<Line>() + " FROM ", Layout<Line>::batches,
                                        " ORDER BY firstLine, lineCount"));
    Entry* before = nullptr;
    while (select.step()) {
        readBatch(before, {{select.integer(0), std::string(select.text(1)), std::string(select.text(2)),
                            select.integer(4)},
                           select.integer(3),
                           {}});
    }
    // Lines that no batch has any more must not be in the way of new ones.
    const std::int64_t lastLine = database_.integer(sql("SELECT max(id) FROM ", Layout<Line>::table, ""));
    if (lastLine >= nextLine_ && lastLine < mostBelievableNumber) {
        nextLine_ = lastLine + 1;
    }
    nextPlace_ = nextLine_;
    savedID_ = lastID_;
}

template <typename Line>
LineTable<Line>::~LineTable() = default;

template <typename Line>
std::vector<LineBatch> LineTable<Line>::batches() const {
    std::vector<LineBatch> result;
    result.reserve(entries_.size());
    for (const auto& [key, entry] : entries_) {
        result.push_back(entry.batch);
    }
    return result;
}

template <typename Line>
std::int64_t LineTable<Line>::lineCount(const std::string& group, const std::string& label) const {
    std::int64_t count = 0;
    for (auto entry = firstOf(group, label); entry != entries_.end() && isOf(entry->second, group, label);
         ++entry) {
        count += entry->second.batch.lineCount;
    }
    return count;
}

template <typename Line>
void LineTable<Line>::replace(const std::string& group, const std::string& label, std::vector<Line> lines) {
    const auto first = firstOf(group, label);
    auto last = first;
    while (last != entries_.end() && isOf(last->second, group, label)) {
        if (last->second.firstLine != unsaved) {
            letGo(last->second);
            removed_.push_back(std::move(last->second));
        }
        ++last;
    }
    entries_.erase(first, last);
    if (lines.empty()) {
        return;
    }
    LineBatch batch{++lastID_, group, label, static_cast<std::int64_t>(lines.size())};
    const Order key = order(batch);
    pending_.push_back(key);
    entries_.emplace(key, Entry{.batch = std::move(batch), .lines = std::move(lines)});
}

template <typename Line>
void LineTable<Line>::takeBack(const std::string& group, const std::string& label) {
    std::erase_if(entries_, [&](const auto& entry) {
        return entry.second.firstLine == unsaved && isOf(entry.second, group, label);
    });
    const auto back = std::stable_partition(removed_.begin(), removed_.end(),
                                            [&](const Entry& entry) { return !isOf(entry, group, label); });
    for (Entry& entry : std::ranges::subrange(back, removed_.end())) {
        const Order key = order(entry.batch);
        entries_.emplace(key, std::move(entry));
    }
    removed_.erase(back, removed_.end());
}

template <typename Line>
void LineTable<Line>::readBlocks(const LineBatch& batch,
                                 const std::function<void(std::span<const Line>)>& visit) const {
    const Entry& entry = entries_.at(order(batch));
    if (entry.firstLine == unsaved) {
        visit(entry.lines);
    } else {
        readRange<Line>(statements_->selectLines, Layout<Line>::columns, entry, visit);
    }
}

template <typename Line>
void LineTable<Line>::readFigureBlocks(const LineBatch& batch,
                                       const std::function<void(std::span<const Figures>)>& visit) const {
    const Entry& entry = entries_.at(order(batch));
    if (!entry.lines.empty()) {
        visit(std::vector<Figures>(entry.lines.begin(), entry.lines.end()));
        entry.isHandedOver = true;
        if (entry.firstLine != unsaved) {
            letGo(entry);
        }
    } else {
        readRange<Figures>(statements_->selectFigures, Layout<Line>::figures, entry, visit);
    }
}

template <typename Line>
template <typename Item, typename Columns, typename Statement>
void LineTable<Line>::readRange(Statement& statement, const Columns& columns, const Entry& entry,
                                const std::function<void(std::span<const Item>)>& visit) const {
    std::vector<Item> block;
    std::int64_t count = 0;
    const auto give = [&] {
        visit(block);
        count += static_cast<std::int64_t>(block.size());
        block.clear();
    };
    try {
        if (!statement) {
            statement = database_.prepare(sql("SELECT " + names(columns) + " FROM ", Layout<Line>::table,
                                              " WHERE id >= ? AND id < ? ORDER BY id"));
        }
        SqliteStatement& select = *statement;
        select.bind(0, entry.firstLine);
        select.bind(1, entry.firstLine + entry.batch.lineCount);
        block.reserve(linesOfBlock);
        while (select.step()) {
            block.push_back(readRow<Item>(select, columns, 0));
            if (block.size() == linesOfBlock) {
                give();
            }
        }
        select.reset();
    } catch (const SqliteError& error) {
        health_.addDamage(error.what());
    }
    give();
    if (count != entry.batch.lineCount) {
        tellDamage(entry.batch);
    }
}

template <typename Line>
void LineTable<Line>::writeLines(std::int64_t& most) {
    for (Entry& entry : removed_) {
        deleteSome(entry, most);
    }
    for (Entry* entry : unsavedEntries()) {
        naming(entry->batch, [&] { insertSome(*entry, most); });
    }
}

template <typename Line>
bool LineTable<Line>::hasUnwrittenLines() {
    const auto isUnwritten = [](const Entry& entry) { return entry.written < entry.batch.lineCount; };
    const auto entries = unsavedEntries();
    return std::ranges::any_of(removed_, isUnwritten) ||
           std::ranges::any_of(entries, [&](const Entry* entry) { return isUnwritten(*entry); });
}

template <typename Line>
void LineTable<Line>::write() {
    std::int64_t all = std::numeric_limits<std::int64_t>::max();
    writeLines(all);
    for (const Entry& entry : removed_) {
        database_.run(sql("DELETE FROM ", Layout<Line>::batches, " WHERE id = ?"), entry.batch.id);
    }
    for (const Entry* entry : unsavedEntries()) {
        naming(entry->batch, [&] { insertBatch(*entry); });
    }
}

template <typename Line>
void LineTable<Line>::removeUnsaved() {
    deleteRange(nextLine_, std::numeric_limits<std::int64_t>::max());
    database_.run(sql("DELETE FROM ", Layout<Line>::batches, " WHERE id > ?"), savedID_);
}

template <typename Line>
void LineTable<Line>::committed() {
    removed_.clear();
    for (Entry* entry : unsavedEntries()) {
        entry->firstLine = entry->place;
        entry->written = 0;
        keptLines_ += entry->lines.size();
        if (entry->isHandedOver || keptLines_ > mostKeptLines) {
            letGo(*entry);
        }
    }
    pending_.clear();
    nextLine_ = nextPlace_;
    savedID_ = lastID_;
}

template <typename Line>
void LineTable<Line>::rolledBack() {
    for (Entry& entry : removed_) {
        entry.written = 0;
    }
    for (Entry* entry : unsavedEntries()) {
        entry->place = unsaved;
        entry->written = 0;
    }
    nextPlace_ = nextLine_;
}

template <typename Line>
typename LineTable<Line>::Order LineTable<Line>::order(const LineBatch& batch) {
    return {groupRank(batch.group), batch.group, batch.label, batch.id};
}

template <typename Line>
auto LineTable<Line>::firstOf(const std::string& group, const std::string& label) const {
    return entries_.lower_bound({groupRank(group), group, label, 0});
}

template <typename Line>
bool LineTable<Line>::isBelievable(const Entry& entry) {
    const LineBatch& batch = entry.batch;
    return batch.id > 0 && batch.id < mostBelievableNumber && entry.firstLine > 0 &&
           entry.firstLine < mostBelievableNumber && batch.lineCount >= 0 &&
           batch.lineCount <= mostBelievableLines;
}

// Batches come by their first line, each with the one `before` it. No two have lines in common, or a sale
// would be counted twice.
template <typename Line>
void LineTable<Line>::readBatch(Entry*& before, Entry entry) {
    if (!isBelievable(entry)) {
        tellDamage(entry.batch);
        return;
    }
    if (before != nullptr && entry.firstLine < nextLine_) {
        tellDamage(before->batch);
        tellDamage(entry.batch);
        before->batch.lineCount = entry.firstLine - before->firstLine;
    }
    lastID_ = std::max(lastID_, entry.batch.id);
    nextLine_ = entry.firstLine + entry.batch.lineCount;
    const Order key = order(entry.batch);
    before = &entries_.emplace(key, std::move(entry)).first->second;
}

template <typename Line>
void LineTable<Line>::letGo(const Entry& entry) const {
    keptLines_ -= entry.lines.size();
    // Assigning {} would keep the memory.
    entry.lines = std::vector<Line>();
}

template <typename Line>
void LineTable<Line>::tellDamage(const LineBatch& batch) const {
    health_.addDamagedReport({batch.group, batch.label});
}

// Without those that were replaced again before they were ever saved.
template <typename Line>
std::vector<typename LineTable<Line>::Entry*> LineTable<Line>::unsavedEntries() {
    std::vector<Entry*> result;
    for (const Order& key : pending_) {
        if (const auto known = entries_.find(key); known != entries_.end()) {
            result.push_back(&known->second);
        }
    }
    return result;
}

template <typename Line>
void LineTable<Line>::deleteSome(Entry& entry, std::int64_t& most) {
    const std::int64_t count = std::min(most, entry.batch.lineCount - entry.written);
    if (count <= 0) {
        return;
    }
    deleteRange(entry.firstLine + entry.written, entry.firstLine + entry.written + count);
    entry.written += count;
    most -= count;
}

template <typename Line>
void LineTable<Line>::deleteRange(std::int64_t first, std::int64_t last) {
    auto lines = database_.prepare(sql("DELETE FROM ", Layout<Line>::table, " WHERE id >= ? AND id < ?"));
    lines.bind(0, first);
    lines.bind(1, last);
    lines.run();
}

template <typename Line>
void LineTable<Line>::insertSome(Entry& entry, std::int64_t& most) {
    if (entry.place == unsaved) {
        entry.place = nextPlace_;
        nextPlace_ += entry.batch.lineCount;
    }
    const std::int64_t count = std::min(most, entry.batch.lineCount - entry.written);
    if (count <= 0) {
        return;
    }
    auto& insert = statements_->insertLine;
    if (!insert) {
        insert = database_.prepare(insertSQL(Layout<Line>::table, Layout<Line>::columns));
    }
    RowWriter writer(*insert, Layout<Line>::columns);
    const auto first = entry.lines.begin() + entry.written;
    for (const Line& line : std::ranges::subrange(first, first + count)) {
        writer.write(entry.place + entry.written++, line);
    }
    most -= count;
}

template <typename Line>
void LineTable<Line>::insertBatch(const Entry& entry) {
    auto batch = database_.prepare(
        sql("INSERT INTO ", Layout<Line>::batches, " (" + batchColumns<Line>() + ") VALUES (?, ?, ?, ?, ?)"));
    batch.bind(0, entry.batch.id);
    batch.bind(1, std::string_view(entry.batch.group));
    batch.bind(2, std::string_view(entry.batch.label));
    batch.bind(3, entry.place);
    batch.bind(4, entry.batch.lineCount);
    batch.run();
}

template class LineTable<SalesLine>;
template class LineTable<FinanceLine>;

}  // namespace vantrell
