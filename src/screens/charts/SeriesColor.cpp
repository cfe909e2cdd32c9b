#include "screens/charts/SeriesColor.h"

#include <array>

namespace vantrell {
namespace {

struct Pair {
    QRgb light;
    QRgb dark;
};

constexpr std::array<Pair, 8> palette{{{0xFF2A78D6, 0xFF3987E5},
                                       {0xFFEB6834, 0xFFD95926},
                                       {0xFF1BAF7A, 0xFF199E70},
                                       {0xFFEDA100, 0xFFC98500},
                                       {0xFFE87BA4, 0xFFD55181},
                                       {0xFF838383, 0xFF838383},
                                       {0xFF4A3AA7, 0xFF9085E9},
                                       {0xFFE34948, 0xFFE66767}}};
constexpr Pair others{0x998E8E93, 0x998E8E93};  // gray at 60 %

}  // namespace

SeriesColor seriesColor(std::optional<int> colorIndex) {
    const bool isColored = colorIndex && *colorIndex >= 0 && *colorIndex < static_cast<int>(palette.size());
    const Pair& pair = isColored ? palette[static_cast<std::size_t>(*colorIndex)] : others;
    return {QColor::fromRgba(pair.light), QColor::fromRgba(pair.dark)};
}

}  // namespace vantrell
