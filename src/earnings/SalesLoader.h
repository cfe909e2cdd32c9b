#pragma once

#include "data/ModelContext.h"
#include "earnings/SalesChunk.h"
#include "earnings/TextPool.h"

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vantrell {

/// Turns stored lines into chunks, and remembers which item and which price each combination of stored values
/// has become. Belongs to one store: the numbers of its dictionary are taken as keys.
class SalesLoader {
  public:
    SalesLoader(TextPool& texts, TextPool& currencies, std::vector<SalesItem>& items,
                std::vector<SalesPrice>& prices)
        : texts_(texts), currencies_(currencies), items_(items), prices_(prices) {}

    /// Throws SqliteError if the lines can't be read.
    [[nodiscard]] std::shared_ptr<const SalesChunk> chunk(ModelContext& context, const LineBatch& batch);

  private:
    struct ItemKey {
        std::int64_t appleID;
        std::array<TextID, 4> texts;
        bool operator==(const ItemKey&) const = default;
    };
    struct PriceKey {
        Decimal proceeds;
        Decimal customerPrice;
        std::array<TextID, 2> currencies;
        bool operator==(const PriceKey&) const = default;
    };
    struct Hash {
        std::size_t operator()(const ItemKey& key) const;
        std::size_t operator()(const PriceKey& key) const;
    };

    void append(SalesChunk& chunk, const SalesFigures& line, const TextDictionary& dictionary);
    void appendDate(SalesChunk& chunk, Instant date);
    std::uint32_t item(const SalesFigures& line, const TextDictionary& dictionary);
    std::uint32_t price(const SalesFigures& line, const TextDictionary& dictionary);
    std::uint32_t text(TextID id, const TextDictionary& dictionary);

    TextPool& texts_;
    TextPool& currencies_;
    std::vector<SalesItem>& items_;
    std::vector<SalesPrice>& prices_;
    std::unordered_map<ItemKey, std::uint32_t, Hash> itemNumbers_;
    std::unordered_map<PriceKey, std::uint32_t, Hash> priceNumbers_;
    // Those of the line before, which the next line often shares.
    const std::pair<const ItemKey, std::uint32_t>* lastItem_ = nullptr;
    const std::pair<const PriceKey, std::uint32_t>* lastPrice_ = nullptr;

    static constexpr std::uint32_t unknown = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> textNumbers_;  // by number of the store's dictionary
};

}  // namespace vantrell
