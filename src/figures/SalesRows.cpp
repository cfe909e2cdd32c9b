#include "figures/SalesRows.h"

#include <algorithm>
#include <utility>

namespace vantrell {
namespace {

/// Spans that meet become one, since each costs a look at every report.
void append(std::vector<SalesRows::Span>& spans, SalesRows::Span next) {
    if (next.first >= next.last) {
        return;
    }
    if (!spans.empty() && spans.back().last == next.first) {
        spans.back().last = next.last;
    } else {
        spans.push_back(next);
    }
}

}  // namespace

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

std::vector<SalesRows::Span> SalesRows::dailySpansOutside(const std::vector<std::string>& years) const {
    const auto daily = span(ReportFrequency::daily, std::nullopt, std::nullopt);
    const auto yearOfChunk = [](const auto& chunk) { return yearOf(chunk->reportDate); };
    const auto begin = chunks_.begin() + static_cast<std::ptrdiff_t>(daily.first);
    const auto end = chunks_.begin() + static_cast<std::ptrdiff_t>(daily.last);
    std::vector<Span> spans;
    std::size_t first = daily.first;
    for (const std::string& year : years) {
        const auto covered = std::ranges::equal_range(begin, end, std::string_view(year), {}, yearOfChunk);
        append(spans, {first, static_cast<std::size_t>(covered.begin() - chunks_.begin())});
        first = static_cast<std::size_t>(covered.end() - chunks_.begin());
    }
    append(spans, {first, daily.last});
    return spans;
}

std::vector<SalesRows::Span> SalesRows::yearlySpans(const std::vector<std::string>& years) const {
    std::vector<Span> spans;
    for (const std::string& year : years) {
        append(spans, span(ReportFrequency::yearly, year, year));
    }
    return spans;
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
