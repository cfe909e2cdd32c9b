#include "reports/Gunzip.h"

#include "platform/Inflate.h"

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

const char* description(GunzipError::Reason reason) {
    switch (reason) {
        case GunzipError::Reason::corruptContainer:
            return "The report is damaged: it is not a complete gzip file.";
        case GunzipError::Reason::corruptStream:
            return "The report is damaged: it could not be unpacked.";
        case GunzipError::Reason::tooLarge:
            return "The report is too large to unpack.";
    }
    return "";
}

GunzipError::Reason reason(InflateError error) {
    switch (error) {
        case InflateError::corrupt:
            return GunzipError::Reason::corruptStream;
        case InflateError::tooLarge:
            return GunzipError::Reason::tooLarge;
    }
    return GunzipError::Reason::corruptStream;
}

}  // namespace

GunzipError::GunzipError(Reason reason) : std::runtime_error(description(reason)), reason_(reason) {}

std::string gunzipIfNeeded(std::string data, std::size_t maxBytes) {
    if (!looksLikeGzip(data)) {
        return data;
    }
    const std::string_view bytes = data;
    const std::size_t start = streamStart(bytes);
    const std::size_t end = bytes.size() - trailerBytes;
    if (start >= end) {
        throw GunzipError(GunzipError::Reason::corruptContainer);
    }
    Inflated inflated = inflateRaw(bytes.substr(start, end - start), maxBytes);
    if (inflated.error) {
        throw GunzipError(reason(*inflated.error));
    }
    return std::move(inflated.bytes);
}

}  // namespace vantrell
