#pragma once

#include "data/LineRejected.h"
#include "data/LineWriter.h"
#include "data/Sqlite.h"
#include "data/StoreHealth.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <ranges>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace vantrell {

/// Tells one set of lines from every other that was ever stored: the same number means the same lines.
using BatchID = std::int64_t;

/// The lines of one report, which are stored, replaced and read together.
struct LineBatch {
    BatchID id = 0;
    std::string group;  ///< frequency of a sales report, region of a finance report
    std::string label;  ///< report date or fiscal period
    std::int64_t lineCount = 0;
};

/// The statements for one kind of line and its batches.
struct LineSQL {
    const char* selectBatches;  ///< id, group, label, first line, line count, by first line
    const char* insertBatch;
    const char* deleteBatch;
    const char* insertLine;     ///< the line's number, then the columns in the order of `write`
    const char* selectLines;    ///< from a first number up to but not including a last one
    const char* selectFigures;  ///< likewise, with the columns that the figures need
    const char* deleteLines;    ///< likewise
    const char* lastLine;       ///< the highest number of a line
    const char* deleteBatchesAfter;
};

/// How one kind of line lies in its table: see the specialisations.
template <typename Line>
struct LineMapping;

/// All lines of one kind. They lie on disk, the lines of one report under consecutive numbers, so that a
/// report is found, read and removed as one range; in memory are only the list of batches and the lines that
/// wait for the next save.
template <typename Line>
class LineTable {
  public:
    using Mapping = LineMapping<Line>;
    using Figures = typename Mapping::Figures;
    /// By group, label and age: the order in which rows are given.
    using Order = std::tuple<int, std::string, std::string, BatchID>;

    /// Reads the list of batches; throws SqliteError. What is found damaged, now or later, is told to
    /// `health`.
    LineTable(SqliteDatabase& database, StoreHealth& health) : database_(database), health_(health) {
        auto select = database_.prepare(Mapping::sql.selectBatches);
        Entry* before = nullptr;
        while (select.step()) {
            readBatch(before, {{select.integer(0), std::string(select.text(1)), std::string(select.text(2)),
                                select.integer(4)},
                               select.integer(3),
                               {}});
        }
        // Lines that no batch has any more must not be in the way of new ones.
        const std::int64_t lastLine = database_.integer(Mapping::sql.lastLine);
        if (lastLine >= nextLine_ && lastLine < mostBelievableNumber) {
            nextLine_ = lastLine + 1;
        }
        nextPlace_ = nextLine_;
        savedID_ = lastID_;
    }
    LineTable(const LineTable&) = delete;
    LineTable& operator=(const LineTable&) = delete;

    /// In the order in which rows are given. Pending replacements are seen at once.
    [[nodiscard]] std::vector<LineBatch> batches() const {
        std::vector<LineBatch> result;
        result.reserve(entries_.size());
        for (const auto& [key, entry] : entries_) {
            result.push_back(entry.batch);
        }
        return result;
    }

    /// How many lines there are under (group, label), by what the store says of them.
    [[nodiscard]] std::int64_t lineCount(const std::string& group, const std::string& label) const {
        std::int64_t count = 0;
        for (auto entry = firstOf(group, label); entry != entries_.end() && isOf(entry->second, group, label);
             ++entry) {
            count += entry->second.batch.lineCount;
        }
        return count;
    }

    /// Removes all lines under (group, label) and puts `lines` in their place, in this order.
    void replace(const std::string& group, const std::string& label, std::vector<Line> lines) {
        const auto first = firstOf(group, label);
        auto last = first;
        while (last != entries_.end() && isOf(last->second, group, label)) {
            if (last->second.firstLine != unsaved) {
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
        entries_.emplace(key, Entry{std::move(batch), unsaved, std::move(lines)});
    }

    /// Undoes the last pending `replace` of these lines: those that were stored before are back.
    void takeBack(const std::string& group, const std::string& label) {
        std::erase_if(entries_, [&](const auto& entry) {
            return entry.second.firstLine == unsaved && isOf(entry.second, group, label);
        });
        const auto back = std::stable_partition(
            removed_.begin(), removed_.end(), [&](const Entry& entry) { return !isOf(entry, group, label); });
        for (Entry& entry : std::ranges::subrange(back, removed_.end())) {
            const Order key = order(entry.batch);
            entries_.emplace(key, std::move(entry));
        }
        removed_.erase(back, removed_.end());
    }

    /// Calls `visit` with each line of the batch, in the order of the report. Lines that can't be read, or
    /// are missing, are told to the store's health and left out.
    template <typename Visit>
    void readLines(const LineBatch& batch, Visit visit) {
        const Entry& entry = entries_.at(order(batch));
        if (entry.firstLine == unsaved) {
            for (const Line& line : entry.lines) {
                visit(line);
            }
            return;
        }
        readRange(selectLines_, Mapping::sql.selectLines, entry,
                  [&visit](const SqliteStatement& row) { visit(Mapping::read(row)); });
    }

    /// As `readLines`, with no more than the figures need.
    template <typename Visit>
    void readFigures(const LineBatch& batch, Visit visit) {
        const Entry& entry = entries_.at(order(batch));
        if (entry.firstLine == unsaved) {
            for (const Line& line : entry.lines) {
                visit(Mapping::figures(line));
            }
            return;
        }
        readRange(selectFigures_, Mapping::sql.selectFigures, entry,
                  [&visit](const SqliteStatement& row) { visit(Mapping::readFigures(row)); });
    }

    [[nodiscard]] bool hasChanges() const { return !removed_.empty() || !pending_.empty(); }

    /// Writes pending changes of lines inside the caller's transaction, at most as many lines as `most` says,
    /// from which those written are taken. What names the lines is left to `write`. Throws SqliteError.
    void writeLines(std::int64_t& most) {
        for (Entry& entry : removed_) {
            deleteSome(entry, most);
        }
        for (Entry* entry : unsavedEntries()) {
            naming(*entry, [&] { insertSome(*entry, most); });
        }
    }

    /// Removes what a save has left whose commit failed, and may yet stand in the file; inside the caller's
    /// transaction, before anything else is written. Throws SqliteError.
    void removeUnsaved() {
        deleteRange(nextLine_, std::numeric_limits<std::int64_t>::max());
        auto batches = database_.prepare(Mapping::sql.deleteBatchesAfter);
        batches.bind(0, savedID_);
        batches.run();
    }

    /// Whether `writeLines` has more to do.
    [[nodiscard]] bool hasUnwrittenLines() {
        const auto isUnwritten = [](const Entry& entry) { return entry.written < entry.batch.lineCount; };
        const auto entries = unsavedEntries();
        return std::ranges::any_of(removed_, isUnwritten) ||
               std::ranges::any_of(entries, [&](const Entry* entry) { return isUnwritten(*entry); });
    }

    /// Writes the pending changes, or what `writeLines` has left of them, inside the caller's transaction;
    /// throws SqliteError.
    void write() {
        std::int64_t all = std::numeric_limits<std::int64_t>::max();
        writeLines(all);
        for (const Entry& entry : removed_) {
            SqliteStatement& batch = prepared(deleteBatch_, Mapping::sql.deleteBatch);
            batch.bind(0, entry.batch.id);
            batch.run();
        }
        for (const Entry* entry : unsavedEntries()) {
            naming(*entry, [&] { insertBatch(*entry); });
        }
    }

    /// To be called when that transaction was committed.
    void committed() {
        removed_.clear();
        for (Entry* entry : unsavedEntries()) {
            entry->firstLine = entry->place;
            // Assigning {} would keep the memory.
            entry->lines = std::vector<Line>();
            entry->written = 0;
        }
        pending_.clear();
        nextLine_ = nextPlace_;
        savedID_ = lastID_;
    }

    /// To be called when it came to nothing.
    void rolledBack() {
        for (Entry& entry : removed_) {
            entry.written = 0;
        }
        for (Entry* entry : unsavedEntries()) {
            entry->place = unsaved;
            entry->written = 0;
        }
        nextPlace_ = nextLine_;
    }

  private:
    static constexpr std::int64_t unsaved = 0;
    // More than any report has, and than any store will ever count.
    static constexpr std::int64_t mostBelievableLines = 10'000'000;
    static constexpr std::int64_t mostBelievableNumber = std::int64_t{1} << 53U;

    struct Entry {
        LineBatch batch;
        std::int64_t firstLine = unsaved;
        std::vector<Line> lines;  // only while unsaved
        // Of the transaction under way:
        std::int64_t place = unsaved;  // where the first line lies
        std::int64_t written = 0;      // how many lines were inserted, or deleted
    };

    static Order order(const LineBatch& batch) {
        return {Mapping::groupRank(batch.group), batch.group, batch.label, batch.id};
    }

    static bool isOf(const Entry& entry, const std::string& group, const std::string& label) {
        return entry.batch.group == group && entry.batch.label == label;
    }

    [[nodiscard]] auto firstOf(const std::string& group, const std::string& label) const {
        return entries_.lower_bound({Mapping::groupRank(group), group, label, 0});
    }

    static bool isBelievable(const Entry& entry) {
        const LineBatch& batch = entry.batch;
        return batch.id > 0 && batch.id < mostBelievableNumber && entry.firstLine > 0 &&
               entry.firstLine < mostBelievableNumber && batch.lineCount >= 0 &&
               batch.lineCount <= mostBelievableLines;
    }

    // Batches come by their first line, each with the one `before` it. No two have lines in common, or a sale
    // would be counted twice.
    void readBatch(Entry*& before, Entry entry) {
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

    void tellDamage(const LineBatch& batch) { health_.addDamagedReport({batch.group, batch.label}); }

    SqliteStatement& prepared(std::optional<SqliteStatement>& statement, const char* sql) {
        if (!statement) {
            statement = database_.prepare(sql);
        }
        return *statement;
    }

    template <typename Visit>
    void readRange(std::optional<SqliteStatement>& cached, const char* sql, const Entry& entry, Visit visit) {
        std::int64_t count = 0;
        try {
            SqliteStatement& select = prepared(cached, sql);
            select.bind(0, entry.firstLine);
            select.bind(1, entry.firstLine + entry.batch.lineCount);
            while (select.step()) {
                visit(select);
                ++count;
            }
            select.reset();
        } catch (const SqliteError& error) {
            health_.addDamage(error.what());
        }
        if (count != entry.batch.lineCount) {
            tellDamage(entry.batch);
        }
    }

    // Without those that were replaced again before they were ever saved.
    std::vector<Entry*> unsavedEntries() {
        std::vector<Entry*> result;
        for (const Order& key : pending_) {
            if (const auto known = entries_.find(key); known != entries_.end()) {
                result.push_back(&known->second);
            }
        }
        return result;
    }

    // A failure of what is inserted tells whose lines they were.
    template <typename Insert>
    static void naming(const Entry& entry, Insert insert) {
        try {
            insert();
        } catch (const SqliteError& error) {
            throw LineRejected(error, {entry.batch.group, entry.batch.label});
        }
    }

    void deleteSome(Entry& entry, std::int64_t& most) {
        const std::int64_t count = std::min(most, entry.batch.lineCount - entry.written);
        if (count <= 0) {
            return;
        }
        deleteRange(entry.firstLine + entry.written, entry.firstLine + entry.written + count);
        entry.written += count;
        most -= count;
    }

    void deleteRange(std::int64_t first, std::int64_t last) {
        SqliteStatement& lines = prepared(deleteLines_, Mapping::sql.deleteLines);
        lines.bind(0, first);
        lines.bind(1, last);
        lines.run();
    }

    void insertSome(Entry& entry, std::int64_t& most) {
        if (entry.place == unsaved) {
            entry.place = nextPlace_;
            nextPlace_ += entry.batch.lineCount;
        }
        const std::int64_t count = std::min(most, entry.batch.lineCount - entry.written);
        if (count <= 0) {
            return;
        }
        LineWriter writer(prepared(insertLine_, Mapping::sql.insertLine));
        const auto first = entry.lines.begin() + entry.written;
        for (const Line& line : std::ranges::subrange(first, first + count)) {
            Mapping::write(writer, line);
            writer.insert(entry.place + entry.written++);
        }
        most -= count;
    }

    void insertBatch(const Entry& entry) {
        SqliteStatement& batch = prepared(insertBatch_, Mapping::sql.insertBatch);
        batch.bind(0, entry.batch.id);
        batch.bind(1, std::string_view(entry.batch.group));
        batch.bind(2, std::string_view(entry.batch.label));
        batch.bind(3, entry.place);
        batch.bind(4, entry.batch.lineCount);
        batch.run();
    }

    SqliteDatabase& database_;
    StoreHealth& health_;
    std::map<Order, Entry> entries_;
    BatchID lastID_ = 0;
    BatchID savedID_ = 0;  // the highest that surely is in the file
    std::int64_t nextLine_ = 1;
    std::int64_t nextPlace_ = 1;  // the same in the transaction under way
    std::vector<Entry> removed_;
    std::vector<Order> pending_;
    std::optional<SqliteStatement> selectLines_;
    std::optional<SqliteStatement> selectFigures_;
    std::optional<SqliteStatement> insertLine_;
    std::optional<SqliteStatement> insertBatch_;
    std::optional<SqliteStatement> deleteLines_;
    std::optional<SqliteStatement> deleteBatch_;
};

}  // namespace vantrell
