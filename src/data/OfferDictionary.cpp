#include "data/OfferDictionary.h"

#include "Layouts.h"
#include "OpenStore.h"
#include "RowWriter.h"

#include <algorithm>
#include <functional>
#include <string>

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

std::uint64_t folded(std::int64_t value) {
    return static_cast<std::uint64_t>(value);
}

constexpr auto& columns = Layout<StoredOffer>::columns;

}  // namespace

std::size_t OfferDictionary::Hash::operator()(const StoredOffer& offer) const {
    std::size_t hash = 0;
    forEach(columns, [&](const auto& column) { hash = mixed(hash, folded(offer.*column.member)); });
    return hash;
}

OfferDictionary::OfferDictionary(const OpenStore& store) : database_(store.database) {
    auto select = database_.prepare("SELECT id, " + names(columns) + " FROM sales_offer ORDER BY id");
    while (select.step()) {
        const auto id = static_cast<std::int64_t>(offers_.size());
        if (select.integer(0) != id || intern(readRow<StoredOffer>(select, columns, 1)) != id) {
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
    auto insert = database_.prepare(insertSQL(Layout<StoredOffer>::table, columns));
    RowWriter writer(insert, columns);
    for (std::size_t id = saved_; id < offers_.size(); ++id) {
        writer.write(static_cast<std::int64_t>(id), *offers_[id]);
    }
}

void OfferDictionary::removeUnsaved() {
    database_.run("DELETE FROM sales_offer WHERE id >= ?", static_cast<std::int64_t>(saved_));
}

}  // namespace vantrell
