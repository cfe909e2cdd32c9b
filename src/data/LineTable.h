#pragma once

#include "data/LineWriter.h"
#include "platform/Sqlite.h"

#include <cstdint>
#include <map>
#include <optional>
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

    /// Writes the pending changes inside the caller's transaction; throws SqliteError.
    void write() {
        removeOld();
        std::int64_t line = nextLine_;
        for (const Order& key : pending_) {
            const auto known = entries_.find(key);
            if (known == entries_.end()) {
                continue;  // replaced again before it was ever saved
            }
            insertBatch(known->second, line);
            line += known->second.batch.lineCount;
        }
    }

    /// To be called when that transaction was committed.
    void committed() {
        removed_.clear();
        for (const Order& key : pending_) {
            const auto known = entries_.find(key);
            if (known == entries_.end()) {
                continue;
            }
            Entry& entry = known->second;
            entry.firstLine = nextLine_;
            nextLine_ += entry.batch.lineCount;
            entry.lines = {};
        }
        pending_.clear();
    }

  private:
    static constexpr std::int64_t unsaved = 0;

    struct Entry {
        LineBatch batch;
        std::int64_t firstLine = unsaved;
        std::vector<Line> lines;  // only while unsaved
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

    void removeOld() {
        for (const Entry& entry : removed_) {
            SqliteStatement& lines = prepared(deleteLines_, Mapping::sql.deleteLines);
            lines.bind(0, entry.firstLine);
            lines.bind(1, entry.firstLine + entry.batch.lineCount);
            lines.run();
            SqliteStatement& batch = prepared(deleteBatch_, Mapping::sql.deleteBatch);
            batch.bind(0, entry.batch.id);
            batch.run();
        }
    }

    void insertBatch(const Entry& entry, std::int64_t firstLine) {
        SqliteStatement& batch = prepared(insertBatch_, Mapping::sql.insertBatch);
        batch.bind(0, entry.batch.id);
        batch.bind(1, std::string_view(entry.batch.group));
        batch.bind(2, std::string_view(entry.batch.label));
        batch.bind(3, firstLine);
        batch.bind(4, entry.batch.lineCount);
        batch.run();
        SqliteStatement& insert = prepared(insertLine_, Mapping::sql.insertLine);
        LineWriter writer(insert);
        for (const Line& line : entry.lines) {
            Mapping::write(writer, line);
            writer.insert(firstLine++);
        }
    }

    SqliteDatabase& database_;
    std::map<Order, Entry> entries_;
    BatchID lastID_ = 0;
    std::int64_t nextLine_ = 1;
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
