#pragma once

#include "data/ModelContext.h"

#include <cstddef>
#include <vector>

namespace vantrell {

/// Reads as many of the reports that weren't read yet as take a few milliseconds: `read` gives a report's
/// number of lines. False when that was little or nothing, so that what needs them can follow at once.
template <typename IsRead, typename Read>
[[nodiscard]] bool readAhead(const std::vector<LineBatch>& batches, IsRead isRead, Read read) {
    constexpr std::size_t mostLines = 10'000;
    constexpr std::size_t fewLines = 1'000;
    std::size_t lines = 0;
    for (const LineBatch& batch : batches) {
        if (lines >= mostLines) {
            break;
        }
        if (!isRead(batch.id)) {
            lines += read(batch);
        }
    }
    return lines > fewLines;
}

}  // namespace vantrell
