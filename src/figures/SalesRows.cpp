#include "figures/SalesRows.h"

#include <algorithm>
#include <utility>

namespace vantrell {

SalesRows::SalesRows(SalesChunks chunks, std::shared_ptr<const OfferTable> table,
                     std::shared_ptr<const TextDictionary> texts, std::int64_t load)
    : chunks_(std::move(chunks)), table_(std::move(table)), texts_(std::move(texts)), load_(load) {
    // Reports whose frequency is unknown count as daily ones, and belong among them by their date.
    std::ranges::stable_sort(chunks_, {}, [](const auto& chunk) {
        return std::pair<ReportFrequency, std::string_view>(chunk->frequency, chunk->reportDate);
    });
    firstRow_.reserve(chunks_.size());
    for (const auto& chunk : chunks_) {
        firstRow_.push_back(size_);
        size_ += chunk->size();
    }
}

SalesRows::Span SalesRows::span(ReportFrequency frequency, const std::optional<std::string>& from,
                                const std::optional<std::string>& to) const {
    const auto first = std::ranges::partition_point(chunks_, [&](const auto& chunk) {
        return chunk->frequency < frequency ||
               (chunk->frequency == frequency && from && chunk->reportDate < *from);
    });
    const auto last = std::partition_point(first, chunks_.end(), [&](const auto& chunk) {
        return chunk->frequency == frequency && (!to || chunk->reportDate <= *to);
    });
    return {static_cast<std::size_t>(first - chunks_.begin()),
            static_cast<std::size_t>(last - chunks_.begin())};
}

SalesRows::Span SalesRows::dailySpanAfterYear(std::string_view label) const {
    Span daily = span(ReportFrequency::daily, std::nullopt, std::nullopt);
    while (daily.first < daily.last && yearOf(chunks_[daily.first]->reportDate) <= label) {
        ++daily.first;
    }
    return daily;
}

SalesRowLite SalesRows::row(std::size_t chunk, std::size_t index) const {
    const SalesChunk& report = *chunks_[chunk];
    const SalesOffer& offer = offers()[report.offers[index]];
    const StoredOffer& stored = offer.stored;
    return {.id = {load_, firstRow_[chunk] + index},
            .frequency = report.frequency,
            .reportDate = report.reportDate,
            .date = report.dateOf(index),
            .appleID = stored.appleID,
            .sku = texts_->text(stored.sku),
            .parentSKU = texts_->text(stored.parentSKU),
            .title = texts_->text(stored.title),
            .kind = offer.kind,
            .productType = texts_->text(stored.productType),
            .units = report.unitsOf(index),
            .proceedsPerUnit = stored.proceedsPerUnit,
            .currency = currencies()[offer.currency],
            .customerPrice = stored.customerPrice,
            .customerCurrency = texts_->text(stored.customerCurrency),
            .country = texts_->text(report.countries[index])};
}

}  // namespace vantrell
