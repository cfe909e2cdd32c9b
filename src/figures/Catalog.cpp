#include "figures/Catalog.h"

#include <algorithm>
#include <string_view>

namespace vantrell {
namespace {

/// What has been seen of one Apple identifier so far.
struct Seen {
    const StoredOffer* latest = nullptr;  // gives title, SKU and product type
    Instant date = distantPast;
    ProductKind kind = ProductKind::other;
    TextID parentSKU = 0;
};

// App before in-app product before update and redownload before other, whatever the order of the lines; of
// update and redownload the first one stays.
ProductKind preferredKind(ProductKind seen, ProductKind line) {
    if (seen == ProductKind::app || line == ProductKind::app) {
        return ProductKind::app;
    }
    if (seen == ProductKind::other) {
        return line;
    }
    if (line == ProductKind::iap) {
        return ProductKind::iap;
    }
    return seen;
}

void look(Seen& seen, const SalesOffer& offer, Instant date) {
    // Of two lines of one day the later one is the newer.
    if (date >= seen.date) {
        seen.latest = &offer.stored;
        seen.date = date;
    }
    if (offer.kind == ProductKind::iap && (seen.parentSKU == 0 || date >= seen.date)) {
        seen.parentSKU = offer.stored.parentSKU;
    }
    seen.kind = preferredKind(seen.kind, offer.kind);
}

std::map<std::int64_t, Seen> everythingSeen(const SalesRows& rows) {
    // Offers of one identifier share one record, found without a look-up per line.
    std::map<std::int64_t, Seen> seen;
    std::vector<Seen*> byOffer;
    byOffer.reserve(rows.offers().size());
    for (const SalesOffer& offer : rows.offers()) {
        byOffer.push_back(offer.stored.appleID == 0 ? nullptr : &seen[offer.stored.appleID]);
    }
    for (const auto& chunk : rows.chunks()) {
        for (std::size_t row = 0; row < chunk->size(); ++row) {
            const std::uint32_t number = chunk->offers[row];
            if (Seen* record = byOffer[number]) {
                look(*record, rows.offers()[number], chunk->dateOf(row));
            }
        }
    }
    // Offers outlive their lines, so an identifier may be left without any.
    std::erase_if(seen, [](const auto& entry) { return entry.second.latest == nullptr; });
    return seen;
}

bool isApp(ProductKind kind) {
    return kind == ProductKind::app || kind == ProductKind::update || kind == ProductKind::redownload;
}

std::string shownTitle(const StoredOffer& offer, const TextDictionary& texts) {
    const std::string_view title = texts.text(offer.title);
    return std::string(title.empty() ? texts.text(offer.sku) : title);
}

template <typename Info>
std::vector<Info> sortedByTitle(const std::map<std::int64_t, Info>& infos, const Locale& locale) {
    std::vector<Info> sorted;
    sorted.reserve(infos.size());
    for (const auto& [id, info] : infos) {
        sorted.push_back(info);
    }
    std::ranges::stable_sort(sorted, [&locale](const Info& left, const Info& right) {
        return locale.compareNames(left.title, right.title) < 0;
    });
    return sorted;
}

}  // namespace

Catalog::Catalog(const SalesRows& rows, const Locale& locale) {
    const TextDictionary& texts = rows.texts();
    const auto seen = everythingSeen(rows);
    std::map<std::string_view, std::int64_t> appBySKU;
    for (const auto& [id, record] : seen) {
        if (isApp(record.kind)) {
            const std::string_view sku = texts.text(record.latest->sku);
            appByID_.emplace(id, AppInfo{id, std::string(sku), shownTitle(*record.latest, texts)});
            appBySKU[sku] = id;
        }
    }
    for (const auto& [id, record] : seen) {
        if (record.kind != ProductKind::iap) {
            continue;
        }
        // No parent is no app, even where an app has no SKU either.
        const std::string_view parent = texts.text(record.parentSKU);
        const auto owner = parent.empty() ? appBySKU.end() : appBySKU.find(parent);
        productByID_.emplace(
            id,
            ProductInfo{id, std::string(texts.text(record.latest->sku)), shownTitle(*record.latest, texts),
                        owner == appBySKU.end() ? std::nullopt : std::optional(owner->second),
                        isSubscriptionType(texts.text(record.latest->productType))});
    }
    apps_ = sortedByTitle(appByID_, locale);
    products_ = sortedByTitle(productByID_, locale);
}

std::optional<std::int64_t> Catalog::owningApp(std::int64_t appleID) const {
    if (appByID_.contains(appleID)) {
        return appleID;
    }
    const auto product = productByID_.find(appleID);
    return product == productByID_.end() ? std::nullopt : product->second.appID;
}

}  // namespace vantrell
