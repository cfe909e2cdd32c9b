#pragma once

#include "data/ModelContext.h"
#include "figures/SalesChunk.h"
#include "figures/SalesOffer.h"
#include "figures/TextPool.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

namespace vantrell {

/// Turns stored lines into chunks, and remembers which offer of the snapshot each stored one has become.
/// Belongs to one store: the numbers of its dictionaries are taken as keys.
class SalesLoader {
  public:
    SalesLoader(TextPool& texts, TextPool& currencies, std::vector<SalesOffer>& offers)
        : texts_(texts), currencies_(currencies), offers_(offers) {}

    /// Throws SqliteError if the lines can't be read.
    [[nodiscard]] std::shared_ptr<const SalesChunk> chunk(ModelContext& context, const LineBatch& batch);

  private:
    void append(SalesChunk& chunk, const SalesFigures& line, const ModelContext& context);
    static void appendDate(SalesChunk& chunk, Instant date);
    static void appendUnits(SalesChunk& chunk, std::int64_t units);
    std::uint32_t offer(OfferID id, const ModelContext& context);
    [[nodiscard]] SalesOffer newOffer(const StoredOffer& offer, const TextDictionary& dictionary);
    std::uint32_t text(TextID id, const TextDictionary& dictionary);

    TextPool& texts_;
    TextPool& currencies_;
    std::vector<SalesOffer>& offers_;

    static constexpr std::uint32_t unknown = std::numeric_limits<std::uint32_t>::max();
    // By number of the store's dictionaries.
    std::vector<std::uint32_t> offerNumbers_;
    std::vector<std::uint32_t> textNumbers_;
};

}  // namespace vantrell
