#pragma once

#include <cstdint>
#include <optional>
#include <set>

namespace vantrell {

/// The apps that a figure covers, by their Apple identifiers. Absent means everything, rows without an
/// owning app included; an empty set means nothing.
using AppFilter = std::optional<std::set<std::int64_t>>;

}  // namespace vantrell
