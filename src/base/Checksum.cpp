#include "base/Checksum.h"

#include <libdeflate.h>

namespace vantrell {

std::uint32_t crc32(std::string_view text, std::uint32_t before) {
    return libdeflate_crc32(before, text.data(), text.size());
}

}  // namespace vantrell
