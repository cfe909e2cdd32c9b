#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace vantrell {

/// Why a gzip body could not be unpacked; `what()` is for the user.
class GunzipError final : public std::runtime_error {
  public:
    enum class Reason {
        corruptContainer,  ///< the headers leave no room for a stream
        corruptStream,
        tooLarge,
    };

    explicit GunzipError(Reason reason);

    [[nodiscard]] Reason reason() const { return reason_; }

  private:
    Reason reason_;
};

inline constexpr std::size_t maxInflatedBytes = std::size_t{512} << 20U;

/// The plain bytes of a gzip member (RFC 1952); data that doesn't begin like one comes back unchanged. The
/// trailer's checksum and length are not looked at, and further members are ignored. Throws GunzipError.
[[nodiscard]] std::string gunzipIfNeeded(std::string data, std::size_t maxBytes = maxInflatedBytes);

}  // namespace vantrell
