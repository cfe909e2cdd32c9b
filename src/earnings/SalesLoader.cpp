#include "earnings/SalesLoader.h"

#include <functional>
#include <limits>

namespace vantrell {
namespace {

// Multiplying by a large odd number and folding spreads small numbers well; the keys are mostly small.
std::size_t mixed(std::size_t hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15U;
    return hash ^ (hash >> 29U);
}

std::size_t mixed(std::size_t hash, const Decimal& value) {
    const auto parts = value.parts();
    if (!parts) {
        return mixed(hash, std::hash<std::string>()(value.text()));
    }
    return mixed(mixed(hash, static_cast<std::uint64_t>(parts->coefficient)),
                 static_cast<std::uint64_t>(parts->exponent));
}

}  // namespace

std::size_t SalesLoader::Hash::operator()(const Key& key) const {
    std::size_t hash = mixed(0, static_cast<std::uint64_t>(key.appleID));
    hash = mixed(mixed(hash, key.proceeds), key.customerPrice);
    for (const TextID text : key.texts) {
        hash = mixed(hash, text);
    }
    return hash;
}

std::shared_ptr<const SalesChunk> SalesLoader::chunk(ModelContext& context, const LineBatch& batch) {
    auto chunk = std::make_shared<SalesChunk>();
    chunk->batch = batch.id;
    chunk->frequency = reportFrequency(batch.group).value_or(ReportFrequency::daily);
    chunk->reportDate = batch.label;
    context.salesLines().readFigures(
        batch, [&](const SalesFigures& line) { append(*chunk, line, context.texts()); });
    chunk->offers.shrink_to_fit();
    chunk->countries.shrink_to_fit();
    chunk->units.shrink_to_fit();
    chunk->dates.shrink_to_fit();
    return chunk;
}

void SalesLoader::append(SalesChunk& chunk, const SalesFigures& line, const TextDictionary& dictionary) {
    appendDate(chunk, line.beginDate);
    chunk.offers.push_back(offer(line, dictionary));
    chunk.countries.push_back(text(line.country, dictionary));
    const bool fits =
        line.units > SalesChunk::largeUnits && line.units <= std::numeric_limits<std::int32_t>::max();
    if (!fits) {
        chunk.unitsByRow.emplace(chunk.units.size(), line.units);
    }
    chunk.units.push_back(fits ? static_cast<std::int32_t>(line.units) : SalesChunk::largeUnits);
}

void SalesLoader::appendDate(SalesChunk& chunk, Instant date) {
    if (chunk.offers.empty()) {
        chunk.date = date;
        return;
    }
    if (chunk.dates.empty() && date != chunk.date) {
        chunk.dates.assign(chunk.offers.size(), chunk.date);
    }
    if (!chunk.dates.empty()) {
        chunk.dates.push_back(date);
    }
}

std::uint32_t SalesLoader::offer(const SalesFigures& line, const TextDictionary& dictionary) {
    const Key key{line.appleID,
                  line.proceedsPerUnit,
                  line.customerPrice,
                  {line.sku, line.parentSKU, line.title, line.productType, line.proceedsCurrency,
                   line.customerCurrency}};
    if (last_ && last_->first == key) {
        return last_->second;
    }
    const auto [known, isNew] = offerNumbers_.try_emplace(key, static_cast<std::uint32_t>(offers_.size()));
    if (isNew) {
        offers_.push_back(newOffer(line, dictionary));
    }
    last_ = &*known;
    return known->second;
}

SalesOffer SalesLoader::newOffer(const SalesFigures& line, const TextDictionary& dictionary) {
    const auto pooled = [&](TextID id) { return texts_.text(text(id, dictionary)); };
    return {.kind = productKind(dictionary.text(line.productType)),
            .currency = currencies_.intern(dictionary.text(line.proceedsCurrency)),
            .proceeds = ScaledPrice(line.proceedsPerUnit),
            .appleID = line.appleID,
            .sku = pooled(line.sku),
            .parentSKU = pooled(line.parentSKU),
            .title = pooled(line.title),
            .productType = pooled(line.productType),
            .customerPrice = line.customerPrice,
            .customerCurrency = pooled(line.customerCurrency)};
}

std::uint32_t SalesLoader::text(TextID id, const TextDictionary& dictionary) {
    if (id >= textNumbers_.size()) {
        textNumbers_.resize(std::size_t{id} + 1, unknown);
    }
    if (textNumbers_[id] == unknown) {
        textNumbers_[id] = texts_.intern(dictionary.text(id));
    }
    return textNumbers_[id];
}

}  // namespace vantrell
