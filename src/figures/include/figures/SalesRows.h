#pragma once

#include "data/TextDictionary.h"
#include "figures/SalesChunk.h"
#include "figures/SalesOffer.h"
#include "figures/SalesRowLite.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

/// The year of a day key: its first four characters.
[[nodiscard]] inline std::string_view yearOf(std::string_view reportDate) {
    return reportDate.substr(0, 4);
}

using SalesChunks = std::vector<std::shared_ptr<const SalesChunk>>;

/// All stored sales lines in memory, compact and in this order: daily, weekly, monthly and yearly reports,
/// each by date, each in the order of its file. Texts and offers have the store's numbers.
class SalesRows {
  public:
    SalesRows() = default;
    /// `load` numbers the reload, for the identities of the rows.
    SalesRows(SalesChunks chunks, std::shared_ptr<const OfferTable> table,
              std::shared_ptr<const TextDictionary> texts, std::int64_t load);

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }

    [[nodiscard]] const SalesChunks& chunks() const { return chunks_; }
    [[nodiscard]] const std::vector<SalesOffer>& offers() const { return table_->offers; }
    [[nodiscard]] const std::vector<std::string_view>& currencies() const { return table_->currencies; }
    [[nodiscard]] const TextDictionary& texts() const { return *texts_; }

    /// Consecutive chunks, by their numbers.
    struct Span {
        std::size_t first = 0;
        std::size_t last = 0;  ///< one past the last
    };
    /// The chunks of one frequency with a report date not before `from` and not after `to`, each bound only
    /// if given.
    [[nodiscard]] Span span(ReportFrequency frequency, const std::optional<std::string>& from,
                            const std::optional<std::string>& to) const;

    /// The chunks of daily reports of all years but these, which are in ascending order.
    [[nodiscard]] std::vector<Span> dailySpansOutside(const std::vector<std::string>& years) const;
    /// The chunks of the yearly reports of these years.
    [[nodiscard]] std::vector<Span> yearlySpans(const std::vector<std::string>& years) const;

    /// Of the report with this number of a chunk.
    [[nodiscard]] std::optional<std::string_view> reportDate(std::size_t chunk) const {
        return chunks_[chunk]->reportDate;
    }
    [[nodiscard]] SalesRowLite row(std::size_t chunk, std::size_t index) const;

  private:
    SalesChunks chunks_;
    std::shared_ptr<const OfferTable> table_ = std::make_shared<const OfferTable>();
    std::shared_ptr<const TextDictionary> texts_;
    std::vector<std::uint64_t> firstRow_;  // number of each chunk's first row
    std::size_t size_ = 0;
    std::int64_t load_ = 0;
};

}  // namespace vantrell
