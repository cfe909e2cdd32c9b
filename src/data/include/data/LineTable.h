#pragma once

#include "data/FinanceLine.h"
#include "data/SalesLine.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <tuple>
#include <vector>

namespace vantrell {

class SqliteDatabase;
class StoreHealth;
struct OpenStore;

/// Tells one set of lines from every other that was ever stored: the same number means the same lines.
using BatchID = std::int64_t;

/// The lines of one report, which are stored, replaced and read together.
struct LineBatch {
    BatchID id = 0;
    std::string group;  ///< frequency of a sales report, region of a finance report
    std::string label;  ///< report date or fiscal period
    std::int64_t lineCount = 0;
};

/// All lines of one kind. They lie on disk, the lines of one report under consecutive numbers, so that a
/// report is found, read and removed as one range; in memory are only the list of batches and the lines that
/// wait for the next save, or for the figures to take them over.
template <typename Line>
class LineTable {
  public:
    using Figures = typename Line::Figures;

    /// Reads the list of batches; throws SqliteError. What is found damaged, now or later, is told to the
    /// store's health.
    explicit LineTable(const OpenStore& store);
    ~LineTable();
    LineTable(const LineTable&) = delete;
    LineTable& operator=(const LineTable&) = delete;

    /// In the order in which rows are given. Pending replacements are seen at once.
    [[nodiscard]] std::vector<LineBatch> batches() const;
    /// How many lines there are under (group, label), by what the store says of them.
    [[nodiscard]] std::int64_t lineCount(const std::string& group, const std::string& label) const;

    /// Calls `visit` with each line of the batch, in the order of the report. Lines that can't be read, or
    /// are missing, are told to the store's health and left out.
    template <typename Visit>
    void readLines(const LineBatch& batch, Visit visit) const {
        readBlocks(batch, [&visit](std::span<const Line> lines) {
            for (const Line& line : lines) {
                visit(line);
            }
        });
    }
    /// As `readLines`, with no more than the figures need. Lines that were saved since the last call are
    /// still in memory and handed over once; only what is older, or more than there is room for, comes from
    /// the disk.
    template <typename Visit>
    void readFigures(const LineBatch& batch, Visit visit) const {
        readFigureBlocks(batch, [&visit](std::span<const Figures> lines) {
            for (const Figures& line : lines) {
                visit(line);
            }
        });
    }

  private:
    friend class ModelContext;
    /// By group, label and age: the order in which rows are given.
    using Order = std::tuple<int, std::string, std::string, BatchID>;
    static constexpr std::int64_t unsaved = 0;
    struct Entry {
        LineBatch batch;
        std::int64_t firstLine = unsaved;
        // While unsaved, and after that until a reader takes them over, which changes nothing that is stored.
        mutable std::vector<Line> lines;
        mutable bool isHandedOver = false;
        // Of the transaction under way:
        std::int64_t place = unsaved;  // where the first line lies
        std::int64_t written = 0;      // how many lines were inserted, or deleted
    };
    struct Statements;

    void readBlocks(const LineBatch& batch, const std::function<void(std::span<const Line>)>& visit) const;
    void readFigureBlocks(const LineBatch& batch,
                          const std::function<void(std::span<const Figures>)>& visit) const;
    template <typename Item, typename Columns, typename Statement>
    void readRange(Statement& statement, const Columns& columns, const Entry& entry,
                   const std::function<void(std::span<const Item>)>& visit) const;

    /// Removes all lines under (group, label) and puts `lines` in their place, in this order.
    void replace(const std::string& group, const std::string& label, std::vector<Line> lines);
    /// Undoes the last pending `replace` of these lines: those that were stored before are back.
    void takeBack(const std::string& group, const std::string& label);

    [[nodiscard]] bool hasChanges() const { return !removed_.empty() || !pending_.empty(); }
    /// Writes pending changes of lines inside the caller's transaction, at most as many lines as `most` says,
    /// from which those written are taken. What names the lines is left to `write`. Throws SqliteError.
    void writeLines(std::int64_t& most);
    /// Whether `writeLines` has more to do.
    [[nodiscard]] bool hasUnwrittenLines();
    /// Writes the pending changes, or what `writeLines` has left of them, inside the caller's transaction;
    /// throws SqliteError.
    void write();
    /// Removes what a save has left whose commit failed, and may yet stand in the file; inside the caller's
    /// transaction, before anything else is written. Throws SqliteError.
    void removeUnsaved();
    /// To be called when that transaction was committed.
    void committed();
    /// To be called when it came to nothing.
    void rolledBack();

    static Order order(const LineBatch& batch);
    static bool isBelievable(const Entry& entry);
    static bool isOf(const Entry& entry, const std::string& group, const std::string& label) {
        return entry.batch.group == group && entry.batch.label == label;
    }
    [[nodiscard]] auto firstOf(const std::string& group, const std::string& label) const;
    void readBatch(Entry*& before, Entry entry);
    void letGo(const Entry& entry) const;
    void tellDamage(const LineBatch& batch) const;
    [[nodiscard]] std::vector<Entry*> unsavedEntries();
    void deleteSome(Entry& entry, std::int64_t& most);
    void deleteRange(std::int64_t first, std::int64_t last);
    void insertSome(Entry& entry, std::int64_t& most);
    void insertBatch(const Entry& entry);

    SqliteDatabase& database_;
    StoreHealth& health_;
    std::map<Order, Entry> entries_;
    BatchID lastID_ = 0;
    BatchID savedID_ = 0;  // the highest that surely is in the file
    std::int64_t nextLine_ = 1;
    std::int64_t nextPlace_ = 1;  // the same in the transaction under way
    mutable std::size_t keptLines_ = 0;
    std::vector<Entry> removed_;
    std::vector<Order> pending_;
    std::unique_ptr<Statements> statements_;
};

}  // namespace vantrell
