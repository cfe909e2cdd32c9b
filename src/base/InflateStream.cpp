#include "base/InflateStream.h"

#include <limits>
#include <new>
#include <zlib.h>

namespace vantrell {
namespace {

constexpr int withoutWrapper = -15;

}  // namespace

void InflateStream::End::operator()(z_stream_s* state) const {
    inflateEnd(state);
    std::default_delete<z_stream_s>()(state);
}

InflateStream::InflateStream(std::string_view stream) {
    auto state = std::make_unique<z_stream>();
    if (stream.size() > std::numeric_limits<uInt>::max() ||
        inflateInit2(state.get(), withoutWrapper) != Z_OK) {
        throw std::bad_alloc();
    }
    // Only read, though the type doesn't say so.
    state->next_in = reinterpret_cast<Bytef*>(const_cast<char*>(stream.data()));
    state->avail_in = static_cast<uInt>(stream.size());
    state_.reset(state.release());
}

std::size_t InflateStream::streamBytes() const {
    return state_->total_in;
}

std::optional<InflateError> InflateStream::appendNext(std::string& output, std::size_t most) {
    const std::size_t before = output.size();
    output.resize(before + most);
    state_->next_out = reinterpret_cast<Bytef*>(output.data() + before);
    state_->avail_out = static_cast<uInt>(most);
    const int result = inflate(state_.get(), Z_NO_FLUSH);
    const bool isShort = state_->avail_out > 0;
    output.resize(output.size() - state_->avail_out);
    isAtEnd_ = result == Z_STREAM_END;
    // Whatever leaves room without having reached the end can't go on: the stream is cut short.
    return isAtEnd_ || (result == Z_OK && !isShort) ? std::nullopt : std::optional(InflateError::corrupt);
}

}  // namespace vantrell
