#include "reports/ReportText.h"

#include "GzipMember.h"
#include "base/Checksum.h"
#include "base/Utf8.h"
#include "reports/ReportError.h"
#include "reports/ReportLines.h"

#include <algorithm>
#include <utility>

namespace vantrell {
namespace {

constexpr std::size_t pieceBytes = std::size_t{1} << 20U;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
static_assert(pieceBytes > mostLineBytes);

ReportError::Reason reason(InflateError error) {
    return error == InflateError::tooLarge ? ReportError::Reason::tooLarge
                                           : ReportError::Reason::corruptStream;
}

}  // namespace

ReportText::ReportText(std::string body, std::size_t maxBytes, std::size_t mostAtOnce)
    : body_(std::move(body)), maxBytes_(maxBytes), mostAtOnce_(mostAtOnce), rest_(body_) {}

std::optional<std::string_view> ReportText::nextLines() {
    const bool isFirst = !std::exchange(isStarted_, true);
    if (isFirst) {
        unpack();
    }
    while (readMore()) {
    }
    if (isFirst && rest_.starts_with(byteOrderMark)) {
        rest_.remove_prefix(byteOrderMark.size());
    }
    if (rest_.empty()) {
        return std::nullopt;
    }
    const bool isLast = rest_.size() <= pieceBytes && (!stream_ || stream_->isAtEnd());
    std::string_view lines = rest_.substr(0, pieceBytes);
    if (!isLast) {
        lines = lines.substr(0, lines.rfind('\n') + 1);
        if (lines.empty()) {
            throw ReportError(ReportError::Reason::lineTooLong);
        }
    }
    rest_.remove_prefix(lines.size());
    // A line feed is never a part of another character, so that lines can be repaired by themselves.
    if (isUtf8(lines)) {
        return lines;
    }
    repaired_ = repairedUtf8(std::string(lines));
    return repaired_;
}

void ReportText::unpack() {
    const auto packed = gzipStream(body_);
    if (!packed) {
        return;
    }
    Inflated whole = inflateRaw(*packed, std::min(mostAtOnce_, maxBytes_));
    if (whole.error == InflateError::tooLarge && maxBytes_ > mostAtOnce_) {
        stream_.emplace(*packed);
        packed_ = *packed;
        rest_ = {};
        return;
    }
    if (whole.error) {
        throw ReportError(reason(*whole.error));
    }
    checkTrailer(packed->data() + whole.streamBytes, crc32(whole.bytes), whole.bytes.size());
    unpacked_ = std::move(whole.bytes);
    rest_ = unpacked_;
}

/// Unpacks some more of a stream, for as long as a piece has room.
bool ReportText::readMore() {
    if (!stream_ || stream_->isAtEnd() || rest_.size() >= pieceBytes) {
        return false;
    }
    unpacked_.erase(0, unpacked_.size() - rest_.size());
    const std::size_t before = unpacked_.size();
    const auto error = stream_->appendNext(unpacked_, pieceBytes);
    streamedBytes_ += unpacked_.size() - before;
    checksum_ = crc32(std::string_view(unpacked_).substr(before), checksum_);
    rest_ = unpacked_;
    if (error) {
        throw ReportError(reason(*error));
    }
    if (streamedBytes_ > maxBytes_) {
        throw ReportError(ReportError::Reason::tooLarge);
    }
    if (stream_->isAtEnd()) {
        checkTrailer(packed_.data() + stream_->streamBytes(), checksum_, streamedBytes_);
    }
    return true;
}

}  // namespace vantrell
