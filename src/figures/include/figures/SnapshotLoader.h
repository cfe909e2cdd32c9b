#pragma once

#include "data/ModelContext.h"
#include "figures/Snapshot.h"
#include "locale/Locale.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>

namespace vantrell {

/// Makes each snapshot out of the one before and what has changed in the store since, which is always the
/// same one.
class SnapshotLoader {
  public:
    explicit SnapshotLoader(const Locale& locale) : locale_(locale) {}

    /// Reads some of the reports that the next load will need, so that it is quick; false when that was
    /// little or nothing, and the load can follow.
    [[nodiscard]] bool readAhead(const ModelContext& context);

    /// What the context holds now. Lines that can't be read are missing, and told by the store's health.
    [[nodiscard]] SharedSnapshot load(const ModelContext& context, const Snapshot& before);

  private:
    template <typename Chunk>
    using ChunksByBatch = std::unordered_map<BatchID, std::shared_ptr<const Chunk>>;

    [[nodiscard]] std::shared_ptr<const SalesChunk> read(const LineTable<SalesLine>& lines,
                                                         const LineBatch& batch, const ModelContext& context);
    [[nodiscard]] std::shared_ptr<const FinanceChunk> read(const LineTable<FinanceLine>& lines,
                                                           const LineBatch& batch,
                                                           const ModelContext& context) const;
    template <typename Line, typename Chunk>
    [[nodiscard]] std::size_t readSome(const LineTable<Line>& lines, ChunksByBatch<Chunk>& known,
                                       const ModelContext& context);
    template <typename Line, typename Chunk>
    [[nodiscard]] std::vector<std::shared_ptr<const Chunk>> readRest(const LineTable<Line>& lines,
                                                                     ChunksByBatch<Chunk>& known,
                                                                     const ModelContext& context);
    [[nodiscard]] std::shared_ptr<const OfferTable> offerTable(const ModelContext& context);

    const Locale& locale_;
    // Those of the last load, and what was read ahead of the next.
    ChunksByBatch<SalesChunk> sales_;
    ChunksByBatch<FinanceChunk> finance_;
    std::shared_ptr<const OfferTable> table_ = std::make_shared<const OfferTable>();
    std::size_t offersInUse_ = 0;
    std::int64_t load_ = 0;
};

}  // namespace vantrell
