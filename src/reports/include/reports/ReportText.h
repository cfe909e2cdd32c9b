#pragma once

#include "base/Inflate.h"
#include "base/InflateStream.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

inline constexpr std::size_t maxInflatedBytes = std::size_t{512} << 20U;
/// The texts of a day, even of a large account, are unpacked at once, which is three times as fast.
inline constexpr std::size_t mostUnpackedAtOnce = std::size_t{8} << 20U;

/// The text of a report's body as it was sent: unpacked if it is a gzip member, valid UTF-8, and without
/// a byte order mark. It is given in pieces of whole lines and never held as a whole, since half a megabyte
/// can unpack to 512.
class ReportText {
  public:
    explicit ReportText(std::string body, std::size_t maxBytes = maxInflatedBytes,
                        std::size_t mostAtOnce = mostUnpackedAtOnce);
    ReportText(const ReportText&) = delete;
    ReportText& operator=(const ReportText&) = delete;

    /// The next lines, which stay until the next call; absent at the end. Throws ReportError.
    [[nodiscard]] std::optional<std::string_view> nextLines();

  private:
    void unpack();
    [[nodiscard]] bool readMore();

    const std::string body_;
    const std::size_t maxBytes_;
    const std::size_t mostAtOnce_;
    std::string unpacked_;
    std::string_view rest_;  // of the body or of what was unpacked of it
    std::optional<InflateStream> stream_;
    std::string_view packed_;  // what the stream is made from
    std::size_t streamedBytes_ = 0;
    std::uint32_t checksum_ = 0;
    std::string repaired_;
    bool isStarted_ = false;
};

}  // namespace vantrell
