#pragma once

#include "sample/Catalogue.h"

#include <span>
#include <string>
#include <string_view>

namespace vantrell::sample {

/// The body of the store's lookup service: what it knows of the apps among `ids` (decimal numbers, joined by
/// commas) in one country's store. Withdrawn apps and in-app products are not found, a local success is not
/// sold everywhere, and an empty `country` means the United States. Picture addresses begin with `origin`.
[[nodiscard]] std::string lookupBody(std::span<const Item> items, std::string_view ids,
                                     std::string_view country, std::string_view origin);

}  // namespace vantrell::sample
