#pragma once

#include <cstdint>

#include <QPainterPath>

namespace vantrell::sample {

/// The sign on an app's icon, to be filled: it lies within a circle of radius 1 around the origin, y
/// downwards.
[[nodiscard]] QPainterPath iconGlyph(std::int64_t appleID);

}  // namespace vantrell::sample
