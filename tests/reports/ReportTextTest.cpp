#include "base/Checksum.h"
#include "base/Utf8.h"
#include "reports/ReportError.h"
#include "reports/ReportText.h"

#include <memory>
#include <optional>

#include <gtest/gtest.h>
#include <libdeflate.h>

namespace vantrell {
namespace {

using std::string_literals::operator""s;

const std::string report = "Provider\tUnits\nAPPLE\t1\nAPPLE\t2\nAPPLE\t3\n";

std::string deflated(const std::string& text) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(6), &libdeflate_free_compressor);
    std::string packed(libdeflate_deflate_compress_bound(compressor.get(), text.size()), '\0');
    packed.resize(libdeflate_deflate_compress(compressor.get(), text.data(), text.size(), packed.data(),
                                              packed.size()));
    return packed;
}

std::string littleEndian(std::uint32_t number) {
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(number >> shift & 0xFFU);
    }
    return bytes;
}

/// A gzip member with the optional fields that `flags` asks for, and the trailer of `text`.
std::string member(int flags, const std::string& stream, const std::string& text = {}) {
    std::string bytes = "\x1F\x8B\x08"s + static_cast<char>(flags) + "\1\2\3\4\5\6"s;
    bytes += (flags & 0x04) != 0 ? "\x03\x00xyz"s : "";
    bytes += (flags & 0x08) != 0 ? "report.txt\0"s : "";
    bytes += (flags & 0x10) != 0 ? "\0"s : "";
    bytes += (flags & 0x02) != 0 ? "cc"s : "";
    return bytes + stream + littleEndian(crc32(text)) + littleEndian(static_cast<std::uint32_t>(text.size()));
}

/// All pieces of a body together.
std::string textOf(std::string body, std::size_t maxBytes = maxInflatedBytes,
                   std::size_t mostAtOnce = mostUnpackedAtOnce) {
    ReportText text(std::move(body), maxBytes, mostAtOnce);
    std::string whole;
    while (const auto lines = text.nextLines()) {
        whole += *lines;
    }
    return whole;
}

std::optional<ReportError::Reason> failure(const std::string& body, std::size_t maxBytes = maxInflatedBytes,
                                           std::size_t mostAtOnce = mostUnpackedAtOnce) {
    try {
        static_cast<void>(textOf(body, maxBytes, mostAtOnce));
        return std::nullopt;
    } catch (const ReportError& error) {
        return error.reason();
    }
}

TEST(ReportText, UnpacksEveryCombinationOfHeaderFieldsWhateverTheTrailerSays) {
    for (int flags = 0; flags < 0x20; ++flags) {
        EXPECT_EQ(textOf(member(flags, deflated("\xEF\xBB\xBF" + report), "\xEF\xBB\xBF" + report)), report)
            << flags;
    }
}

TEST(ReportText, HandsOnWhatDoesNotBeginLikeAMember) {
    const std::string packed = member(0, deflated(report), report);
    for (const std::string& data : {""s, report, packed.substr(0, 18), "\x1F\x8B\x07"s + packed.substr(3),
                                    "\x1F"s + packed, member(0x02, "").substr(0, 18)}) {
        EXPECT_EQ(textOf(data), repairedUtf8(data));
    }
}

TEST(ReportText, RefusesAHeaderThatLeavesNoRoomForAStream) {
    const std::string zeros(9, '\0');
    const std::string letters(9, 'x');
    for (const std::string& data : {
             "\x1F\x8B\x08\x02\0\0\0\0\0\0"s + zeros,         // 19 bytes, and the checksum takes two
             "\x1F\x8B\x08\x02\0\0\0\0\0\0"s + zeros + "x"s,  // 20 bytes, so that nothing is left
             "\x1F\x8B\x08\x04\0\0\0\0\0\0"s + letters,       // an extra field past the end
             "\x1F\x8B\x08\x08\0\0\0\0\0\0"s + letters,       // a name that never ends
             "\x1F\x8B\x08\x1E\0\0\0\0\0\0\xFF\xFF"s + letters,
         }) {
        EXPECT_EQ(failure(data), ReportError::Reason::corruptContainer) << ::testing::PrintToString(data);
    }
}

TEST(ReportText, RefusesAStreamThatIsDamagedOrCutShort) {
    const std::string packed = member(0x08, deflated(report), report);
    for (std::size_t size = 22; size < packed.size(); ++size) {
        EXPECT_EQ(failure(packed.substr(0, size)).has_value(), true) << size;
    }
    EXPECT_EQ(failure(packed.substr(0, packed.size() - 9)), ReportError::Reason::corruptStream);
    EXPECT_EQ(failure(member(0, std::string(50, '\xFF'))), ReportError::Reason::corruptStream);
}

TEST(ReportText, RefusesATextThatIsNotTheOneThatWasPacked) {
    const std::string packed = member(0, deflated(report), report);
    EXPECT_EQ(textOf(packed + packed), report) << "what comes after is nobody's";
    for (std::size_t end = 1; end <= 8; ++end) {
        std::string damaged = packed;
        damaged[packed.size() - end] = static_cast<char>(damaged[packed.size() - end] ^ 1);
        for (const std::size_t atOnce : {mostUnpackedAtOnce, std::size_t{4}}) {
            EXPECT_EQ(failure(damaged, maxInflatedBytes, atOnce), ReportError::Reason::corruptStream) << end;
        }
    }
}

TEST(ReportText, IsTheSameInPiecesAsAtOnce) {
    std::string longText;
    for (int line = 0; longText.size() < 2'500'000; ++line) {
        longText += std::to_string(line) + (line % 100'000 == 7 ? "\t\xC3\xFF\n" : "\tCaf\u00E9\n");
    }
    const std::string packed = member(0, deflated(longText), longText);
    const std::string expected = repairedUtf8(longText);
    EXPECT_TRUE(textOf(longText) == expected) << "plain";
    EXPECT_TRUE(textOf(packed) == expected) << "at once";
    EXPECT_TRUE(textOf(packed, maxInflatedBytes, 4'096) == expected) << "as a stream";
    EXPECT_TRUE(textOf(member(0, deflated("a\xFF"), "a\xFF")) == "a\uFFFD") << "at once";
    for (const std::size_t atOnce : {std::size_t{4'096}, mostUnpackedAtOnce}) {
        EXPECT_EQ(failure(packed, longText.size(), atOnce), std::nullopt);
        EXPECT_EQ(failure(packed, longText.size() - 1, atOnce), ReportError::Reason::tooLarge);
        EXPECT_EQ(failure(packed.substr(0, packed.size() - 1'000), maxInflatedBytes, atOnce),
                  ReportError::Reason::corruptStream);
    }
}

}  // namespace
}  // namespace vantrell
