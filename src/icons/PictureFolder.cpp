#include "icons/PictureFolder.h"

#include <algorithm>
#include <utility>

#include <QBuffer>
#include <QImageReader>

namespace vantrell {
namespace {

// A small file can unpack to any size, so the size is asked for before anything is unpacked.
constexpr int maxSide = 2048;
// The largest icon of a screen, at the largest scale.
constexpr int keptSide = 256;

const char* formatOf(std::string_view bytes) {
    if (bytes.starts_with("\x89PNG\r\n\x1A\n")) {
        return "png";
    }
    if (bytes.starts_with("\xFF\xD8\xFF")) {
        return "jpeg";
    }
    return bytes.starts_with("RIFF") && bytes.substr(0, 12).ends_with("WEBP") ? "webp" : nullptr;
}

bool isSensible(const QSize& size) {
    return !size.isEmpty() && size.width() <= maxSide && size.height() <= maxSide;
}

QSize keptSize(const QSize& size) {
    const QSize bounds(keptSide, keptSide);
    return size.scaled(bounds, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

}  // namespace

QImage decodedPicture(std::string_view bytes) {
    const char* format = formatOf(bytes);
    if (format == nullptr) {
        return {};
    }
    auto data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    // Named, or Qt would try every format that it knows.
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (!isSensible(size)) {
        return {};
    }
    if (std::max(size.width(), size.height()) > keptSide) {
        reader.setScaledSize(keptSize(size));
    }
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

PictureFolder::PictureFolder(std::filesystem::path folder, std::uintmax_t maxBytes)
    : files_(std::move(folder), maxBytes) {}

QImage PictureFolder::read(std::string_view address) const {
    const auto bytes = files_.read(address);
    auto picture = bytes ? decodedPicture(*bytes) : QImage();
    if (bytes && picture.isNull()) {
        files_.remove(address);
    }
    return picture;
}

QImage PictureFolder::keep(std::string_view address, std::string_view bytes) {
    auto picture = decodedPicture(bytes);
    if (!picture.isNull()) {
        files_.write(address, bytes);
    }
    return picture;
}

}  // namespace vantrell
