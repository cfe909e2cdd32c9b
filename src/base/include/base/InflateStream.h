#pragma once

#include "base/Inflate.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct z_stream_s;

namespace vantrell {

/// Unpacks a raw DEFLATE stream piece by piece, for output that must not be held as a whole. Slower than
/// `inflateRaw`, and otherwise like it.
class InflateStream {
  public:
    /// `stream` must stay.
    explicit InflateStream(std::string_view stream);

    /// Appends at most `most` bytes of what comes next.
    [[nodiscard]] std::optional<InflateError> appendNext(std::string& output, std::size_t most);
    [[nodiscard]] bool isAtEnd() const { return isAtEnd_; }
    /// How much of the stream was read.
    [[nodiscard]] std::size_t streamBytes() const;

  private:
    struct End {
        void operator()(z_stream_s* state) const;
    };
    std::unique_ptr<z_stream_s, End> state_;
    bool isAtEnd_ = false;
};

}  // namespace vantrell
