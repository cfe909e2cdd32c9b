#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vantrell {

class SqliteDatabase;
struct OpenStore;

/// The number of a text in the store's dictionary; 0 is the empty text.
using TextID = std::uint32_t;

/// The distinct texts of all stored lines, by number. A text that was given a number keeps it for ever; new
/// ones are written with the save that first uses them. Held whole in memory.
class TextDictionary {
  public:
    /// Reads what is stored; throws SqliteError.
    explicit TextDictionary(const OpenStore& store);
    TextDictionary(const TextDictionary&) = delete;
    TextDictionary& operator=(const TextDictionary&) = delete;

    [[nodiscard]] TextID intern(std::string_view text);
    /// The empty text for a number that was never given. Valid as long as the dictionary.
    [[nodiscard]] std::string_view text(TextID id) const;
    [[nodiscard]] std::size_t size() const { return texts_.size(); }

    /// About the memory that the texts take.
    [[nodiscard]] std::size_t bytes() const { return bytes_; }
    /// Takes back the newest texts down to `size`, but none that is stored.
    void shrink(std::size_t size);

  private:
    friend class ModelContext;
    [[nodiscard]] static bool hasChanges() { return false; }  // what no line uses needn't be written
    /// Inserts the texts that aren't stored yet, inside the caller's transaction; throws SqliteError.
    void write();
    /// Removes what a save has left whose commit failed; likewise.
    void removeUnsaved();
    /// To be called when that transaction was committed.
    void committed() { saved_ = texts_.size(); }

    SqliteDatabase& database_;
    std::deque<std::string> texts_;
    std::unordered_map<std::string_view, TextID> ids_;
    std::size_t saved_ = 0;
    std::size_t bytes_ = 0;
};

}  // namespace vantrell
