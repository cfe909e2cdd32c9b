#include "GzipMember.h"

#include "reports/ReportError.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace vantrell {
namespace {

constexpr std::size_t fixedHeaderBytes = 10;
constexpr std::size_t trailerBytes = 8;
constexpr std::size_t shortestMember = fixedHeaderBytes + 1 + trailerBytes;

constexpr unsigned flagHeaderChecksum = 0x02;
constexpr unsigned flagExtra = 0x04;
constexpr unsigned flagName = 0x08;
constexpr unsigned flagComment = 0x10;

unsigned byteAt(std::string_view data, std::size_t index) {
    return static_cast<std::uint8_t>(data[index]);
}

bool looksLikeGzip(std::string_view data) {
    return data.size() >= shortestMember && data.starts_with("\x1F\x8B\x08");
}

/// The position behind the zero byte that ends a text, or past the data if none does.
std::size_t behindText(std::string_view data, std::size_t cursor) {
    return std::min(data.find('\0', cursor), data.size()) + 1;
}

/// Where the DEFLATE stream begins; may lie past the data.
std::size_t streamStart(std::string_view data) {
    const unsigned flags = byteAt(data, 3);
    std::size_t cursor = fixedHeaderBytes;
    if ((flags & flagExtra) != 0) {
        cursor += 2 + byteAt(data, cursor) + (byteAt(data, cursor + 1) << 8U);
    }
    if ((flags & flagName) != 0) {
        cursor = behindText(data, cursor);
    }
    if ((flags & flagComment) != 0) {
        cursor = behindText(data, cursor);
    }
    if ((flags & flagHeaderChecksum) != 0) {
        cursor += 2;
    }
    return cursor;
}

}  // namespace

std::optional<std::string_view> gzipStream(std::string_view data) {
    if (!looksLikeGzip(data)) {
        return std::nullopt;
    }
    const std::size_t start = streamStart(data);
    const std::size_t end = data.size() - trailerBytes;
    if (start >= end) {
        throw ReportError(ReportError::Reason::corruptContainer);
    }
    return data.substr(start, end - start);
}

void checkTrailer(const char* end, std::uint32_t checksum, std::size_t length) {
    const auto number = [trailer = std::string_view(end, trailerBytes)](std::size_t at) {
        return byteAt(trailer, at) | byteAt(trailer, at + 1) << 8U | byteAt(trailer, at + 2) << 16U |
               byteAt(trailer, at + 3) << 24U;
    };
    if (number(0) != checksum || number(4) != static_cast<std::uint32_t>(length)) {
        throw ReportError(ReportError::Reason::corruptStream);
    }
}

}  // namespace vantrell
