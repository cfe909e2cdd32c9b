#include "platform/Inflate.h"

#include <memory>
#include <random>

#include <gtest/gtest.h>
#include <libdeflate.h>

namespace vantrell {
namespace {

std::string deflate(const std::string& plain) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(9), &libdeflate_free_compressor);
    std::string packed(libdeflate_deflate_compress_bound(compressor.get(), plain.size()), '\0');
    packed.resize(libdeflate_deflate_compress(compressor.get(), plain.data(), plain.size(), packed.data(),
                                              packed.size()));
    return packed;
}

std::string noise(std::size_t size) {
    std::mt19937 random(7);
    std::string bytes(size, '\0');
    for (auto& byte : bytes) {
        byte = static_cast<char>(random() & 0xFFU);
    }
    return bytes;
}

constexpr std::size_t roomy = std::size_t{64} << 20U;

TEST(Inflate, GivesBackWhatWasPacked) {
    const struct {
        const char* name;
        std::string plain;
    } cases[] = {
        {"nothing", ""},
        {"one byte", "x"},
        {"bytes that do not compress", noise(100'000)},
        {"zero bytes are kept", std::string("a\0b", 3)},
        {"a thousandfold, far above the expected ratio", std::string(5'000'000, 'a')},
    };
    for (const auto& [name, plain] : cases) {
        const auto result = inflateRaw(deflate(plain), roomy);
        EXPECT_FALSE(result.error) << name;
        EXPECT_TRUE(result.bytes == plain) << name;
    }
}

TEST(Inflate, IgnoresBytesAfterTheEndOfTheStream) {
    const auto result = inflateRaw(deflate("report") + "tail", roomy);
    EXPECT_FALSE(result.error);
    EXPECT_EQ(result.bytes, "report");
}

TEST(Inflate, TakesEveryCutOfAStreamAsCorrupt) {
    const auto packed = deflate("Provider\tSKU\n" + noise(200));
    for (std::size_t length = 0; length < packed.size(); ++length) {
        const auto result = inflateRaw(packed.substr(0, length), roomy);
        ASSERT_EQ(result.error, InflateError::corrupt) << length << " bytes";
        ASSERT_TRUE(result.bytes.empty());
    }
}

TEST(Inflate, RefusesBytesThatAreNoStream) {
    const struct {
        const char* name;
        std::string_view stream;
    } cases[] = {
        {"a block of the reserved type", "\x07"},
        {"a stored block whose length and complement disagree", {"\x01\x01\x00\x00\x00x", 6}},
        {"text", "plain text, not packed at all"},
    };
    for (const auto& [name, stream] : cases) {
        EXPECT_EQ(inflateRaw(stream, roomy).error, InflateError::corrupt) << name;
    }
}

TEST(Inflate, StopsAtTheCapAndNotBefore) {
    for (const std::size_t size : {1UL, 4096UL, 4097UL, 300'000UL}) {
        const std::string plain(size, 'z');
        EXPECT_EQ(inflateRaw(deflate(plain), size).bytes.size(), size);
        const auto result = inflateRaw(deflate(plain), size - 1);
        EXPECT_EQ(result.error, InflateError::tooLarge) << size;
        EXPECT_TRUE(result.bytes.empty());
    }
    EXPECT_FALSE(inflateRaw(deflate(""), 0).error);
}

}  // namespace
}  // namespace vantrell
