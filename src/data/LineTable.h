#pragma once

#include "data/LineWriter.h"
#include "platform/Sqlite.h"

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
    const char* selectBatches;  ///< id, group, label, first line, line count
    const char* insertBatch;
    const char* deleteBatch;
    const char* insertLine;     ///< the line's number, then the columns in the order of `write`
    const char* selectLines;    ///< from a first number up to but not including a last one
    const char* selectFigures;  ///< likewise, with the columns that the figures need
    const char* deleteLines;    ///< likewise
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

    /// Reads the list of batches; throws SqliteError.
    explicit LineTable(SqliteDatabase& database) : database_(database) {
        auto select = database_.prepare(Mapping::sql.selectBatches);
        while (select.step()) {
            Entry entry{{select.integer(0), std::string(select.text(1)), std::string(select.text(2)),
                         select.integer(4)},
                        select.integer(3),
                        {}};
            lastID_ = std::max(lastID_, entry.batch.id);
            nextLine_ = std::max(nextLine_, entry.firstLine + entry.batch.lineCount);
            entries_.emplace(order(entry.batch), std::move(entry));
        }
        nextPlace_ = nextLine_;
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

    /// Removes all lines under (group, label) and puts `lines` in their place, in this order.
    void replace(const std::string& group, const std::string& label, std::vector<Line> lines) {
        const auto first = entries_.lower_bound({Mapping::groupRank(group), group, label, 0});
        auto last = first;
        while (last != entries_.end() && last->second.batch.group == group &&
               last->second.batch.label == label) {
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

    /// Calls `visit` with each line of the batch, in the order of the report; throws SqliteError.
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
            insertSome(*entry, most);
        }
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
            insertBatch(*entry);
        }
    }

    /// To be called when that transaction was committed.
    void committed() {
        removed_.clear();
        for (Entry* entry : unsavedEntries()) {
            entry->firstLine = entry->place;
            entry->lines = {};
            entry->written = 0;
        }
        pending_.clear();
        nextLine_ = nextPlace_;
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
    static constexpr std::int64_t mostBelievable = 10'000'000;

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

    SqliteStatement& prepared(std::optional<SqliteStatement>& statement, const char* sql) {
        if (!statement) {
            statement = database_.prepare(sql);
        }
        return *statement;
    }

    template <typename Visit>
    void readRange(std::optional<SqliteStatement>& cached, const char* sql, const Entry& entry, Visit visit) {
        SqliteStatement& select = prepared(cached, sql);
        select.bind(0, entry.firstLine);
        select.bind(1, entry.firstLine + entry.batch.lineCount);
        while (select.step()) {
            visit(select);
        }
        select.reset();
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

    void deleteSome(Entry& entry, std::int64_t& most) {
        // The count of a damaged store can be any number: too many to go through step by step.
        const std::int64_t left = entry.batch.lineCount - entry.written;
        const std::int64_t count = left > mostBelievable ? left : std::min(most, left);
        if (count <= 0) {
            return;
        }
        SqliteStatement& lines = prepared(deleteLines_, Mapping::sql.deleteLines);
        lines.bind(0, entry.firstLine + entry.written);
        lines.bind(1, entry.firstLine + entry.written + count);
        lines.run();
        entry.written += count;
        most -= count;
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
    std::map<Order, Entry> entries_;
    BatchID lastID_ = 0;
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
