#pragma once

#include "base/Decimal.h"
#include "data/TextDictionary.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace vantrell {

/// What sales lines about one product at one price have in common, with texts as numbers of the dictionary.
struct StoredOffer {
    TextID sku = 0;
    TextID title = 0;
    TextID productType = 0;
    TextID parentSKU = 0;
    Decimal proceedsPerUnit;
    TextID proceedsCurrency = 0;
    Decimal customerPrice;
    TextID customerCurrency = 0;
    std::int64_t appleID = 0;

    bool operator==(const StoredOffer&) const = default;
};

/// The number of an offer in the store; 0 is the one without any content.
using OfferID = std::uint32_t;

/// The distinct offers of all stored sales lines, by number. Kept as a TextDictionary keeps texts.
class OfferDictionary {
  public:
    /// Reads what is stored; throws SqliteError.
    explicit OfferDictionary(const OpenStore& store);
    OfferDictionary(const OfferDictionary&) = delete;
    OfferDictionary& operator=(const OfferDictionary&) = delete;

    [[nodiscard]] OfferID intern(const StoredOffer& offer);
    /// The offer without content for a number that was never given. Valid as long as the dictionary.
    [[nodiscard]] const StoredOffer& offer(OfferID id) const;
    [[nodiscard]] std::size_t size() const { return offers_.size(); }

    // As for texts.
    [[nodiscard]] std::size_t bytes() const { return offers_.size() * (sizeof(StoredOffer) + 48); }
    void shrink(std::size_t size);

  private:
    friend class ModelContext;
    [[nodiscard]] static bool hasChanges() { return false; }
    /// Inserts the offers that aren't stored yet, inside the caller's transaction; throws SqliteError.
    void write();
    /// Removes what a save has left whose commit failed; likewise.
    void removeUnsaved();
    /// To be called when that transaction was committed.
    void committed() { saved_ = offers_.size(); }

    struct Hash {
        std::size_t operator()(const StoredOffer& offer) const;
    };

    SqliteDatabase& database_;
    std::unordered_map<StoredOffer, OfferID, Hash> ids_;
    std::vector<const StoredOffer*> offers_;  // the keys of the map
    std::size_t saved_ = 0;
};

}  // namespace vantrell
