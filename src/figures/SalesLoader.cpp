#include "figures/SalesLoader.h"

#include <algorithm>
#include <limits>

namespace vantrell {
namespace {

constexpr std::int64_t mostExpected = 1'000'000;  // lines of one report

/// The place of a number, which is 0 for one that the dictionary doesn't have.
template <typename Dictionary>
std::uint32_t& numberOf(std::uint32_t id, const Dictionary& dictionary, std::vector<std::uint32_t>& numbers,
                        std::uint32_t unknown) {
    if (numbers.size() < dictionary.size()) {
        numbers.resize(dictionary.size(), unknown);
    }
    return numbers[id < numbers.size() ? id : 0];
}

}  // namespace

std::shared_ptr<const SalesChunk> SalesLoader::chunk(ModelContext& context, const LineBatch& batch) {
    auto chunk = std::make_shared<SalesChunk>();
    chunk->batch = batch.id;
    chunk->frequency = reportFrequency(batch.group).value_or(ReportFrequency::daily);
    chunk->reportDate = batch.label;
    // The count of a damaged store can be any number.
    const auto lines = static_cast<std::size_t>(std::clamp<std::int64_t>(batch.lineCount, 0, mostExpected));
    chunk->offers.reserve(lines);
    chunk->countries.reserve(lines);
    chunk->units.reserve(lines);
    context.salesLines().readFigures(batch, [&](const SalesFigures& line) { append(*chunk, line, context); });
    return chunk;
}

void SalesLoader::append(SalesChunk& chunk, const SalesFigures& line, const ModelContext& context) {
    appendDate(chunk, line.beginDate);
    chunk.offers.push_back(offer(line.offer, context));
    chunk.countries.push_back(text(line.country, context.texts()));
    appendUnits(chunk, line.units);
}

void SalesLoader::appendDate(SalesChunk& chunk, Instant date) {
    if (chunk.offers.empty()) {
        chunk.date = date;
        return;
    }
    if (chunk.dates.empty() && date != chunk.date) {
        chunk.dates.reserve(chunk.offers.capacity());
        chunk.dates.assign(chunk.offers.size(), chunk.date);
    }
    if (!chunk.dates.empty()) {
        chunk.dates.push_back(date);
    }
}

void SalesLoader::appendUnits(SalesChunk& chunk, std::int64_t units) {
    const bool fits = units > SalesChunk::largeUnits && units <= std::numeric_limits<std::int32_t>::max();
    if (!fits) {
        chunk.unitsByRow.emplace(chunk.units.size(), units);
    }
    chunk.units.push_back(fits ? static_cast<std::int32_t>(units) : SalesChunk::largeUnits);
}

std::uint32_t SalesLoader::offer(OfferID id, const ModelContext& context) {
    std::uint32_t& number = numberOf(id, context.offers(), offerNumbers_, unknown);
    if (number == unknown) {
        number = static_cast<std::uint32_t>(offers_.size());
        offers_.push_back(newOffer(context.offers().offer(id), context.texts()));
    }
    return number;
}

SalesOffer SalesLoader::newOffer(const StoredOffer& offer, const TextDictionary& dictionary) {
    const auto pooled = [&](TextID id) { return texts_.text(text(id, dictionary)); };
    return {.kind = productKind(dictionary.text(offer.productType)),
            .currency = currencies_.intern(dictionary.text(offer.proceedsCurrency)),
            .proceeds = ScaledPrice(offer.proceedsPerUnit),
            .appleID = offer.appleID,
            .sku = pooled(offer.sku),
            .parentSKU = pooled(offer.parentSKU),
            .title = pooled(offer.title),
            .productType = pooled(offer.productType),
            .customerPrice = offer.customerPrice,
            .customerCurrency = pooled(offer.customerCurrency)};
}

std::uint32_t SalesLoader::text(TextID id, const TextDictionary& dictionary) {
    std::uint32_t& number = numberOf(id, dictionary, textNumbers_, unknown);
    if (number == unknown) {
        number = texts_.intern(dictionary.text(id));
    }
    return number;
}

}  // namespace vantrell
