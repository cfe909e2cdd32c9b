#include "reports/Gunzip.h"

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

/// A gzip member with the optional fields that `flags` asks for and a trailer of zeros.
std::string member(int flags, const std::string& stream) {
    std::string bytes = "\x1F\x8B\x08"s + static_cast<char>(flags) + "\1\2\3\4\5\6"s;
    bytes += (flags & 0x04) != 0 ? "\x03\x00xyz"s : "";
    bytes += (flags & 0x08) != 0 ? "report.txt\0"s : "";
    bytes += (flags & 0x10) != 0 ? "\0"s : "";
    bytes += (flags & 0x02) != 0 ? "cc"s : "";
    return bytes + stream + std::string(8, '\0');
}

std::optional<GunzipError::Reason> failure(const std::string& data, std::size_t maxBytes = maxInflatedBytes) {
    try {
        static_cast<void>(gunzipIfNeeded(data, maxBytes));
        return std::nullopt;
    } catch (const GunzipError& error) {
        return error.reason();
    }
}

TEST(Gunzip, UnpacksEveryCombinationOfHeaderFieldsWhateverTheTrailerSays) {
    for (int flags = 0; flags < 0x20; ++flags) {
        EXPECT_EQ(gunzipIfNeeded(member(flags, deflated(report))), report) << flags;
    }
}

TEST(Gunzip, HandsOnWhatDoesNotBeginLikeAMember) {
    const std::string packed = member(0, deflated(report));
    for (const std::string& data : {""s, report, packed.substr(0, 18), "\x1F\x8B\x07"s + packed.substr(3),
                                    "\x1F"s + packed, member(0x02, "").substr(0, 18)}) {
        EXPECT_EQ(gunzipIfNeeded(data), data);
    }
}

TEST(Gunzip, RefusesAHeaderThatLeavesNoRoomForAStream) {
    const std::string zeros(9, '\0');
    const std::string letters(9, 'x');
    for (const std::string& data : {
             "\x1F\x8B\x08\x02\0\0\0\0\0\0"s + zeros,         // 19 bytes, and the checksum takes two
             "\x1F\x8B\x08\x02\0\0\0\0\0\0"s + zeros + "x"s,  // 20 bytes, so that nothing is left
             "\x1F\x8B\x08\x04\0\0\0\0\0\0"s + letters,       // an extra field past the end
             "\x1F\x8B\x08\x08\0\0\0\0\0\0"s + letters,       // a name that never ends
             "\x1F\x8B\x08\x1E\0\0\0\0\0\0\xFF\xFF"s + letters,
         }) {
        EXPECT_EQ(failure(data), GunzipError::Reason::corruptContainer) << ::testing::PrintToString(data);
    }
}

TEST(Gunzip, RefusesAStreamThatIsDamagedOrCutShort) {
    const std::string packed = member(0x08, deflated(report));
    for (std::size_t size = 22; size < packed.size(); ++size) {
        EXPECT_EQ(failure(packed.substr(0, size)).has_value(), true) << size;
    }
    EXPECT_EQ(failure(packed.substr(0, packed.size() - 9)), GunzipError::Reason::corruptStream);
    EXPECT_EQ(failure(member(0, std::string(50, '\xFF'))), GunzipError::Reason::corruptStream);
}

TEST(Gunzip, StopsAtTheCap) {
    const std::string packed = member(0, deflated(std::string(100'000, '\t')));
    EXPECT_EQ(failure(packed, 100'000), std::nullopt);
    EXPECT_EQ(failure(packed, 99'999), GunzipError::Reason::tooLarge);
}

TEST(Gunzip, IgnoresWhatFollowsTheStream) {
    EXPECT_EQ(gunzipIfNeeded(member(0, deflated(report)) + member(0, deflated(report))), report);
}

}  // namespace
}  // namespace vantrell
