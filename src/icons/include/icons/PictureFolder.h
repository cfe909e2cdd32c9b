#pragma once

#include "files/FileCache.h"

#include <cstdint>
#include <filesystem>
#include <string_view>

#include <QImage>

namespace vantrell {

/// The picture in `bytes`, scaled down to what a screen can need; null unless they are a PNG, a JPEG or,
/// where Qt can read it, a WebP of a sensible size.
[[nodiscard]] QImage decodedPicture(std::string_view bytes);

/// Keeps pictures as they were fetched, by address. Decoding takes its time: this is for a worker, and for
/// one thread at a time.
class PictureFolder {
  public:
    PictureFolder(std::filesystem::path folder, std::uintmax_t maxBytes);

    /// Null if there is none. A file that is no picture is removed.
    [[nodiscard]] QImage read(std::string_view address) const;
    /// The picture in `bytes`, which is kept if it is one.
    [[nodiscard]] QImage keep(std::string_view address, std::string_view bytes);

  private:
    FileCache files_;
};

}  // namespace vantrell
