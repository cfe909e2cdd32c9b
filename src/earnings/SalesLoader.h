#pragma once

#include "data/ModelContext.h"
#include "earnings/SalesChunk.h"
#include "earnings/SalesOffer.h"
#include "earnings/TextPool.h"

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vantrell {

/// Turns stored lines into chunks, and remembers which offer each combination of stored values has become.
/// Belongs to one store: the numbers of its dictionary are taken as keys.
class SalesLoader {
  public:
    SalesLoader(TextPool& texts, TextPool& currencies, std::vector<SalesOffer>& offers)
        : texts_(texts), currencies_(currencies), offers_(offers) {}

    /// Throws SqliteError if the lines can't be read.
    [[nodiscard]] std::shared_ptr<const SalesChunk> chunk(ModelContext& context, const LineBatch& batch);

  private:
    struct Key {
        std::int64_t appleID;
        Decimal proceeds;
        Decimal customerPrice;
        std::array<TextID, 6> texts;
        bool operator==(const Key&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Key& key) const;
    };

    void append(SalesChunk& chunk, const SalesFigures& line, const TextDictionary& dictionary);
    void appendDate(SalesChunk& chunk, Instant date);
    std::uint32_t offer(const SalesFigures& line, const TextDictionary& dictionary);
    [[nodiscard]] SalesOffer newOffer(const SalesFigures& line, const TextDictionary& dictionary);
    std::uint32_t text(TextID id, const TextDictionary& dictionary);

    TextPool& texts_;
    TextPool& currencies_;
    std::vector<SalesOffer>& offers_;
    std::unordered_map<Key, std::uint32_t, Hash> offerNumbers_;
    // That of the line before, which the next line often shares.
    const std::pair<const Key, std::uint32_t>* last_ = nullptr;

    static constexpr std::uint32_t unknown = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> textNumbers_;  // by number of the store's dictionary
};

}  // namespace vantrell
