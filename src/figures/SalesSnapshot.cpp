#include "figures/SalesSnapshot.h"

#include "ReadAhead.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace vantrell {

bool SalesSnapshot::readAhead(ModelContext& context) {
    return vantrell::readAhead(
        context.salesLines().batches(), [this](BatchID batch) { return read_.contains(batch); },
        [&](const LineBatch& batch) {
            return read_.emplace(batch.id, loader_.chunk(context, batch)).first->second->size();
        });
}

bool SalesSnapshot::load(ModelContext& context, std::int64_t load) {
    load_ = load;
    const auto before = std::exchange(chunks_, {});
    const auto known = std::exchange(read_, {});
    for (const LineBatch& batch : context.salesLines().batches()) {
        const auto read = known.find(batch.id);
        chunks_.push_back(read != known.end() ? read->second : loader_.chunk(context, batch));
        read_.emplace(batch.id, chunks_.back());
    }
    // Reports whose frequency is unknown count as daily ones, and belong among them by their date.
    std::ranges::stable_sort(chunks_, {}, [](const auto& chunk) {
        return std::pair<ReportFrequency, std::string_view>(chunk->frequency, chunk->reportDate);
    });
    firstRow_.clear();
    size_ = 0;
    for (const auto& chunk : chunks_) {
        firstRow_.push_back(size_);
        size_ += chunk->size();
    }
    return chunks_ != before;
}

SalesSnapshot::Span SalesSnapshot::span(ReportFrequency frequency, const std::optional<std::string>& from,
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

SalesSnapshot::Span SalesSnapshot::dailySpanAfterYear(std::string_view label) const {
    Span daily = span(ReportFrequency::daily, std::nullopt, std::nullopt);
    while (daily.first < daily.last && yearOf(chunks_[daily.first]->reportDate) <= label) {
        ++daily.first;
    }
    return daily;
}

SalesRowLite SalesSnapshot::row(std::size_t chunk, std::size_t index) const {
    const SalesChunk& report = *chunks_[chunk];
    const SalesOffer& offer = offers_[report.offers[index]];
    return {.id = {load_, firstRow_[chunk] + index},
            .frequency = report.frequency,
            .reportDate = report.reportDate,
            .date = report.dateOf(index),
            .appleID = offer.appleID,
            .sku = offer.sku,
            .parentSKU = offer.parentSKU,
            .title = offer.title,
            .kind = offer.kind,
            .productType = offer.productType,
            .units = report.unitsOf(index),
            .proceedsPerUnit = offer.proceeds.value(),
            .currency = currencies_.text(offer.currency),
            .customerPrice = offer.customerPrice,
            .customerCurrency = offer.customerCurrency,
            .country = texts_.text(report.countries[index])};
}

}  // namespace vantrell
