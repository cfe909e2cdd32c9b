#include "sample/Catalogue.h"

#include <algorithm>
#include <iterator>

namespace vantrell::sample {

std::vector<Item> sampleCatalogue() {
    auto items = sampleApps();
    auto products = sampleProducts(items);
    std::ranges::move(products, std::back_inserter(items));
    return items;
}

std::uint16_t releaseOn(const Item& app, Day day) {
    // Each app has a pace of its own, from five to eight weeks.
    const std::chrono::days pace{35 + app.appleID % 22};
    const auto last = app.withdrawn ? std::min(day, *app.withdrawn) : day;
    return static_cast<std::uint16_t>(std::max(last - app.launched, std::chrono::days{0}) / pace);
}

std::string releaseText(std::uint16_t release) {
    return std::to_string(1 + release / 10) + "." + std::to_string(release % 10);
}

}  // namespace vantrell::sample
