#include "base/Inflate.h"

#include <algorithm>
#include <memory>
#include <new>

#include <libdeflate.h>

namespace vantrell {

namespace {

/// Report text unpacks to some ten times its size, so that the first try is nearly always the only one.
constexpr std::size_t expectedRatio = 16;
/// A stream that needs more starts again from its beginning, which must stay rare.
constexpr std::size_t growth = 4;
constexpr std::size_t smallestBuffer = 4096;

struct FreeDecompressor {
    void operator()(libdeflate_decompressor* decompressor) const {
        libdeflate_free_decompressor(decompressor);
    }
};

std::size_t timesCapped(std::size_t size, std::size_t factor, std::size_t most) {
    return size > most / factor ? most : size * factor;
}

}  // namespace

Inflated inflateRaw(std::string_view stream, std::size_t maxBytes) {
    const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(
        libdeflate_alloc_decompressor());
    if (!decompressor) {
        throw std::bad_alloc();
    }
    auto capacity =
        std::min(std::max(timesCapped(stream.size(), expectedRatio, maxBytes), smallestBuffer), maxBytes);
    for (;;) {
        // Left unwritten at first: pages that the text never reaches cost nothing.
        const auto buffer = std::make_unique_for_overwrite<char[]>(capacity);
        std::size_t written = 0;
        std::size_t read = 0;
        const auto result = libdeflate_deflate_decompress_ex(decompressor.get(), stream.data(), stream.size(),
                                                             buffer.get(), capacity, &read, &written);
        if (result == LIBDEFLATE_SUCCESS) {
            return {std::string(buffer.get(), written), std::nullopt, read};
        }
        if (result != LIBDEFLATE_INSUFFICIENT_SPACE) {
            return {{}, InflateError::corrupt, 0};
        }
        if (capacity == maxBytes) {
            return {{}, InflateError::tooLarge, 0};
        }
        capacity = timesCapped(capacity, growth, maxBytes);
    }
}

}  // namespace vantrell
