#include "figures/SnapshotLoader.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vantrell {
namespace {

constexpr std::int64_t mostExpected = 1'000'000;  // lines of one report
// Read ahead in one go: what takes a few milliseconds, and what can as well wait for the load.
constexpr std::size_t mostLines = 10'000;
constexpr std::size_t fewLines = 1'000;

void appendDate(SalesChunk& chunk, Instant date) {
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

void appendUnits(SalesChunk& chunk, std::int64_t units) {
    const bool fits = units > SalesChunk::largeUnits && units <= std::numeric_limits<std::int32_t>::max();
    if (!fits) {
        chunk.unitsByRow.emplace(chunk.units.size(), units);
    }
    chunk.units.push_back(fits ? static_cast<std::int32_t>(units) : SalesChunk::largeUnits);
}

// A number that the dictionary doesn't have, which only a damaged store holds, counts as 0.
template <typename Dictionary>
std::uint32_t known(std::uint32_t id, const Dictionary& dictionary) {
    return id < dictionary.size() ? id : 0;
}

SalesOffer salesOffer(const StoredOffer& stored, const TextDictionary& texts,
                      std::vector<std::string_view>& currencies) {
    const std::string_view currency = texts.text(stored.proceedsCurrency);
    const auto place = std::ranges::find(currencies, currency);
    const auto number = static_cast<std::uint32_t>(place - currencies.begin());
    if (place == currencies.end()) {
        currencies.push_back(currency);
    }
    return {.kind = productKind(texts.text(stored.productType)),
            .currency = number,
            .proceeds = ScaledPrice(stored.proceedsPerUnit),
            .stored = stored};
}

void takeStatuses(Snapshot& snapshot, const ModelContext& context) {
    for (const auto& [id, report] : context.salesReports().all()) {
        switch (reportFrequency(report.frequencyRaw).value_or(ReportFrequency::daily)) {
            case ReportFrequency::weekly:
                break;
            case ReportFrequency::monthly:
                if (report.isWhole()) {
                    snapshot.monthlyOKLabels.push_back(report.reportDate);
                } else if (report.status() == ReportStatus::empty) {
                    snapshot.emptyMonths.push_back(report.reportDate);
                }
                break;
            case ReportFrequency::yearly:
                if (report.isWhole()) {
                    snapshot.yearlyOKLabels.push_back(report.reportDate);
                } else if (report.status() == ReportStatus::unavailable) {
                    snapshot.unavailableYears.push_back(report.reportDate);
                }
                break;
            case ReportFrequency::daily:
                snapshot.dailyStatuses[report.reportDate] = report.status();
                break;
        }
    }
    for (const auto& [id, report] : context.financeReports().all()) {
        if (report.statusRaw == rawText(ReportStatus::ok)) {
            snapshot.financeOKLabels.push_back(report.fiscalPeriod);
        }
    }
    std::ranges::sort(snapshot.yearlyOKLabels);
    std::ranges::sort(snapshot.monthlyOKLabels);
    std::ranges::sort(snapshot.emptyMonths);
    std::ranges::sort(snapshot.unavailableYears);
    std::ranges::sort(snapshot.financeOKLabels);
}

}  // namespace

bool SnapshotLoader::readAhead(const ModelContext& context) {
    return readSome(context.salesLines(), sales_, context) > fewLines ||
           readSome(context.financeLines(), finance_, context) > fewLines;
}

SharedSnapshot SnapshotLoader::load(const ModelContext& context, const Snapshot& before) {
    auto next = std::make_shared<Snapshot>();
    auto chunks = readRest(context.salesLines(), sales_, context);
    next->salesRows = SalesRows(std::move(chunks), offerTable(context), context.sharedTexts(), ++load_);
    next->financeRows = readRest(context.financeLines(), finance_, context);
    const bool isSame = next->salesRows.chunks() == before.salesRows.chunks();
    next->catalog = isSame ? before.catalog : std::make_shared<const Catalog>(next->salesRows, locale_);
    takeStatuses(*next, context);
    return next;
}

std::shared_ptr<const SalesChunk> SnapshotLoader::read(const LineTable<SalesLine>& lines,
                                                       const LineBatch& batch, const ModelContext& context) {
    auto chunk = std::make_shared<SalesChunk>();
    chunk->frequency = reportFrequency(batch.group).value_or(ReportFrequency::daily);
    chunk->reportDate = batch.label;
    // The count of a damaged store can be any number.
    const auto expected =
        static_cast<std::size_t>(std::clamp<std::int64_t>(batch.lineCount, 0, mostExpected));
    chunk->offers.reserve(expected);
    chunk->countries.reserve(expected);
    chunk->units.reserve(expected);
    lines.readFigures(batch, [&](const SalesFigures& line) {
        appendDate(*chunk, line.beginDate);
        const OfferID offer = known(line.offer, context.offers());
        offersInUse_ = std::max(offersInUse_, std::size_t{offer} + 1);
        chunk->offers.push_back(offer);
        chunk->countries.push_back(known(line.country, context.texts()));
        appendUnits(*chunk, line.units);
    });
    return chunk;
}

std::shared_ptr<const FinanceChunk> SnapshotLoader::read(const LineTable<FinanceLine>& lines,
                                                         const LineBatch& batch,
                                                         const ModelContext& context) const {
    auto chunk = std::make_shared<FinanceChunk>();
    chunk->fiscalPeriod = batch.label;
    const auto text = [&context](TextID id) { return context.texts().text(id); };
    lines.readFigures(batch, [&](const FinanceLine& line) {
        chunk->rows.push_back({.startDate = line.startDate,
                               .endDate = line.endDate,
                               .appleID = line.appleID,
                               .title = text(line.title),
                               .quantity = line.quantity,
                               .extendedShare = line.extendedPartnerShare,
                               .currency = text(line.partnerShareCurrency),
                               .saleOrReturn = text(line.saleOrReturn),
                               .country = text(line.country)});
    });
    return chunk;
}

template <typename Line, typename Chunk>
std::size_t SnapshotLoader::readSome(const LineTable<Line>& lines, ChunksByBatch<Chunk>& known,
                                     const ModelContext& context) {
    std::size_t count = 0;
    for (const LineBatch& batch : lines.batches()) {
        if (count >= mostLines) {
            break;
        }
        if (!known.contains(batch.id)) {
            known.emplace(batch.id, read(lines, batch, context));
            count += static_cast<std::size_t>(batch.lineCount);
        }
    }
    return count;
}

template <typename Line, typename Chunk>
std::vector<std::shared_ptr<const Chunk>> SnapshotLoader::readRest(const LineTable<Line>& lines,
                                                                   ChunksByBatch<Chunk>& known,
                                                                   const ModelContext& context) {
    const auto before = std::exchange(known, {});
    std::vector<std::shared_ptr<const Chunk>> chunks;
    for (const LineBatch& batch : lines.batches()) {
        const auto unchanged = before.find(batch.id);
        chunks.push_back(unchanged != before.end() ? unchanged->second : read(lines, batch, context));
        known.emplace(batch.id, chunks.back());
    }
    return chunks;
}

std::shared_ptr<const OfferTable> SnapshotLoader::offerTable(const ModelContext& context) {
    if (table_->offers.size() < offersInUse_) {
        auto table = std::make_shared<OfferTable>(*table_);
        for (auto id = static_cast<OfferID>(table->offers.size()); id < offersInUse_; ++id) {
            table->offers.push_back(
                salesOffer(context.offers().offer(id), context.texts(), table->currencies));
        }
        table_ = std::move(table);
    }
    return table_;
}

}  // namespace vantrell
