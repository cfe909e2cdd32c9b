#include "sample/GzipWriter.h"

#include <cstdint>
#include <memory>
#include <new>

#include <libdeflate.h>

namespace vantrell::sample {

namespace {

// Reports are packed while a client waits for them, and repeat themselves enough to shrink at any level.
constexpr int quick = 3;

using Compressor = std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)>;

std::string header(std::string_view fileName) {
    constexpr char deflate = 8;
    constexpr char withName = 8;
    constexpr char unix = 3;
    std::string bytes{'\x1F', '\x8B', deflate, fileName.empty() ? '\0' : withName, 0, 0, 0, 0, 0, unix};
    if (!fileName.empty()) {
        bytes.append(fileName).append(1, '\0');
    }
    return bytes;
}

void appendLittleEndian(std::string& out, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) {
        out += static_cast<char>(value >> shift & 0xFFU);
    }
}

std::string deflated(std::string_view content) {
    const Compressor compressor{libdeflate_alloc_compressor(quick), &libdeflate_free_compressor};
    if (!compressor) {
        throw std::bad_alloc{};
    }
    std::string stream(libdeflate_deflate_compress_bound(compressor.get(), content.size()), '\0');
    stream.resize(libdeflate_deflate_compress(compressor.get(), content.data(), content.size(), stream.data(),
                                              stream.size()));
    return stream;
}

}  // namespace

std::string gzip(std::string_view content, std::string_view fileName) {
    auto bytes = header(fileName);
    bytes += deflated(content);
    appendLittleEndian(bytes, libdeflate_crc32(0, content.data(), content.size()));
    appendLittleEndian(bytes, static_cast<std::uint32_t>(content.size()));
    return bytes;
}

}  // namespace vantrell::sample
