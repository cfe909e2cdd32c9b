#include "data/OfferDictionary.h"

#include "PackedDecimal.h"
#include "data/LineWriter.h"

#include <algorithm>
#include <functional>
#include <string>

#include <sqlite3.h>

namespace vantrell {
namespace {

// Multiplying by a large odd number and folding spreads small numbers well; the members are mostly small.
std::size_t mixed(std::size_t hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15U;
    return hash ^ (hash >> 29U);
}

std::uint64_t folded(const Decimal& value) {
    const auto parts = value.parts();
    return parts ? static_cast<std::uint64_t>(parts->coefficient) ^
                       static_cast<std::uint64_t>(parts->exponent) << 56U
                 : std::hash<std::string>()(value.text());
}

std::uint64_t folded(TextID first, TextID second) {
    return std::uint64_t{first} << 32U | second;
}

StoredOffer readOffer(const SqliteStatement& row) {
    return {.sku = readID(row, 1),
            .title = readID(row, 2),
            .productType = readID(row, 3),
            .parentSKU = readID(row, 4),
            .proceedsPerUnit = readDecimal(row, 5),
            .proceedsCurrency = readID(row, 6),
            .customerPrice = readDecimal(row, 7),
            .customerCurrency = readID(row, 8),
            .appleID = row.integer(9)};
}

}  // namespace

std::size_t OfferDictionary::Hash::operator()(const StoredOffer& offer) const {
    std::size_t hash = mixed(static_cast<std::uint64_t>(offer.appleID), folded(offer.sku, offer.title));
    hash = mixed(hash, folded(offer.productType, offer.parentSKU));
    hash = mixed(hash, folded(offer.proceedsCurrency, offer.customerCurrency));
    return mixed(mixed(hash, folded(offer.proceedsPerUnit)), folded(offer.customerPrice));
}

OfferDictionary::OfferDictionary(SqliteDatabase& database) : database_(database) {
    auto select = database_.prepare(
        "SELECT id, sku, title, productType, parentSKU, proceedsPerUnit, proceedsCurrency, customerPrice,"
        " customerCurrency, appleID FROM sales_offer ORDER BY id");
    while (select.step()) {
        const auto id = static_cast<std::int64_t>(offers_.size());
        if (select.integer(0) != id || intern(readOffer(select)) != id) {
            throw SqliteError(SQLITE_CORRUPT, "the dictionary of offers has gaps");
        }
    }
    saved_ = offers_.size();
    // Number 0 must be the offer without content, in a new store as well.
    if (offers_.empty()) {
        static_cast<void>(intern({}));
    }
}

OfferID OfferDictionary::intern(const StoredOffer& offer) {
    const auto [known, isNew] = ids_.try_emplace(offer, static_cast<OfferID>(offers_.size()));
    if (isNew) {
        offers_.push_back(&known->first);
    }
    return known->second;
}

void OfferDictionary::shrink(std::size_t size) {
    while (offers_.size() > std::max(size, saved_)) {
        ids_.erase(ids_.find(*offers_.back()));
        offers_.pop_back();
    }
}

const StoredOffer& OfferDictionary::offer(OfferID id) const {
    return *offers_[id < offers_.size() ? id : 0];
}

void OfferDictionary::write() {
    if (saved_ == offers_.size()) {
        return;
    }
    auto insert = database_.prepare(
        "INSERT INTO sales_offer (id, sku, title, productType, parentSKU, proceedsPerUnit, proceedsCurrency,"
        " customerPrice, customerCurrency, appleID) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    LineWriter writer(insert);
    for (std::size_t id = saved_; id < offers_.size(); ++id) {
        const StoredOffer& offer = *offers_[id];
        writer << offer.sku << offer.title << offer.productType << offer.parentSKU << offer.proceedsPerUnit
               << offer.proceedsCurrency << offer.customerPrice << offer.customerCurrency << offer.appleID;
        writer.insert(static_cast<std::int64_t>(id));
    }
}

void OfferDictionary::removeUnsaved() {
    auto remove = database_.prepare("DELETE FROM sales_offer WHERE id >= ?");
    remove.bind(0, static_cast<std::int64_t>(saved_));
    remove.run();
}

}  // namespace vantrell
