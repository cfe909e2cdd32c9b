#pragma once

#include "data/ModelContext.h"
#include "figures/SalesChunk.h"
#include "figures/SalesLoader.h"
#include "figures/SalesOffer.h"
#include "figures/SalesRowLite.h"
#include "figures/TextPool.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantrell {

/// The year of a day key: its first four characters.
[[nodiscard]] inline std::string_view yearOf(std::string_view reportDate) {
    return reportDate.substr(0, 4);
}

/// All stored sales lines in memory, compact and in the order of the store: daily, weekly, monthly and yearly
/// reports, each by date, each in the order of its file. Reports that did not change since the last load are
/// not read again.
class SalesSnapshot {
  public:
    SalesSnapshot() = default;
    SalesSnapshot(const SalesSnapshot&) = delete;
    SalesSnapshot& operator=(const SalesSnapshot&) = delete;

    /// Reads some of the reports that the next load will need, so that it is quick; false when that was
    /// little or nothing, and the load can follow. What is shown until then stays as it is.
    [[nodiscard]] bool readAhead(ModelContext& context);

    /// Takes over what the context holds now; always of the same store. Lines that can't be read are missing,
    /// and told by the store's health. `load` numbers the reload, for the identities of the rows.
    /// False if the lines are those of the load before.
    bool load(ModelContext& context, std::int64_t load);

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }

    [[nodiscard]] const std::vector<std::shared_ptr<const SalesChunk>>& chunks() const { return chunks_; }
    [[nodiscard]] const std::vector<SalesOffer>& offers() const { return offers_; }
    [[nodiscard]] const TextPool& texts() const { return texts_; }
    /// The currencies of proceeds, in a pool of their own, so that their numbers are few and small.
    [[nodiscard]] const TextPool& currencies() const { return currencies_; }

    /// Consecutive chunks, by their numbers.
    struct Span {
        std::size_t first = 0;
        std::size_t last = 0;  ///< one past the last
    };
    /// The chunks of one frequency with a report date not before `from` and not after `to`, each bound only
    /// if given.
    [[nodiscard]] Span span(ReportFrequency frequency, const std::optional<std::string>& from,
                            const std::optional<std::string>& to) const;

    /// The chunks of daily reports whose year, the first four characters of the report date, sorts after
    /// `label`.
    [[nodiscard]] Span dailySpanAfterYear(std::string_view label) const;

    [[nodiscard]] SalesRowLite row(std::size_t chunk, std::size_t index) const;

  private:
    TextPool texts_;
    TextPool currencies_;
    std::vector<SalesOffer> offers_;
    std::vector<std::shared_ptr<const SalesChunk>> chunks_;
    // Those of the last load, and what was read ahead of the next.
    std::unordered_map<BatchID, std::shared_ptr<const SalesChunk>> read_;
    std::vector<std::uint64_t> firstRow_;  // number of each chunk's first row
    std::size_t size_ = 0;
    std::int64_t load_ = 0;
    SalesLoader loader_{texts_, currencies_, offers_};
};

}  // namespace vantrell
