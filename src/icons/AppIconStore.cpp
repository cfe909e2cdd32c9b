#include "icons/AppIconStore.h"

#include "base/WholeNumber.h"

#include <algorithm>
#include <utility>

#include <QString>

namespace vantrell {
namespace {

constexpr std::string_view addressesKey = "appIconURLs";
constexpr const char* largestStorefront = "US";
constexpr std::size_t mostAtOnce = 100;  // of one request

bool isLargestStorefront(const std::optional<std::string>& country) {
    return country && QString::fromStdString(*country).toUpper() == QLatin1StringView(largestStorefront);
}

}  // namespace

AppIconStore::AppIconStore(const Parts& parts, std::string lookupService)
    : parts_(parts), lookupService_(std::move(lookupService)) {
    loadUrls();
}

QCoro::Task<> AppIconStore::loadIcons(std::vector<std::int64_t> appleIDs) {
    std::vector<std::int64_t> missing = takeUntried(appleIDs);
    const std::stop_token life = life_.token();
    while (!missing.empty()) {
        const auto count = static_cast<std::ptrdiff_t>(std::min(missing.size(), mostAtOnce));
        if (!co_await loadSome({missing.begin(), missing.begin() + count})) {
            break;
        }
        missing.erase(missing.begin(), missing.begin() + count);
    }
    if (!life.stop_requested()) {
        // Those that nobody answered for.
        for (const std::int64_t id : missing) {
            attempted_.erase(id);
        }
    }
}

QCoro::Task<bool> AppIconStore::loadSome(std::vector<std::int64_t> appleIDs) {
    const auto country = parts_.locale.regionCode();
    if (!co_await lookUp(appleIDs, country)) {
        co_return false;
    }
    auto stillMissing = withoutIcon(appleIDs);
    bool isAlive = true;
    if (!stillMissing.empty() && !isLargestStorefront(country)) {
        // An app that isn't sold in the user's country is found in the largest one.
        const std::stop_token life = life_.token();
        isAlive = co_await lookUp(stillMissing, largestStorefront);
        if (life.stop_requested()) {
            co_return false;
        }
        stillMissing = withoutIcon(std::move(stillMissing));
    }
    if (stillMissing.size() < appleIDs.size()) {
        saveUrls();
    }
    co_return isAlive;
}

QCoro::Task<bool> AppIconStore::lookUp(std::vector<std::int64_t> appleIDs,
                                       std::optional<std::string> country) {
    const std::stop_token life = life_.token();
    auto found = co_await IconLookup::fetch(parts_.http, lookupService_, std::move(appleIDs),
                                            std::move(country), life);
    if (life.stop_requested() || !found) {
        co_return false;
    }
    takeIn(*found);
    // Whoever hears of new addresses may do away with the store as well.
    co_return !life.stop_requested();
}

/// They count as tried before a request goes out, so that a call during a lookup does not ask again.
std::vector<std::int64_t> AppIconStore::takeUntried(const std::vector<std::int64_t>& appleIDs) {
    std::vector<std::int64_t> missing;
    std::ranges::copy_if(appleIDs, std::back_inserter(missing),
                         [this](std::int64_t id) { return !urls_.contains(id) && !attempted_.contains(id); });
    attempted_.insert(missing.begin(), missing.end());
    return missing;
}

void AppIconStore::takeIn(const IconAddresses& found) {
    bool changed = false;
    for (const auto& [id, address] : found) {
        auto& known = urls_[id];
        changed = changed || known != address;
        known = address;
    }
    if (changed) {
        Q_EMIT urlsChanged();
    }
}

std::vector<std::int64_t> AppIconStore::withoutIcon(std::vector<std::int64_t> appleIDs) const {
    std::erase_if(appleIDs, [this](std::int64_t id) { return urls_.contains(id); });
    return appleIDs;
}

void AppIconStore::loadUrls() {
    for (const auto& [key, address] : parts_.defaults.textMap(addressesKey).value_or(TextMap())) {
        const auto id = wholeNumber(key);
        if (id && isIconAddress(address)) {
            urls_.emplace(*id, address);
        }
    }
}

void AppIconStore::saveUrls() const {
    TextMap texts;
    for (const auto& [id, address] : urls_) {
        texts.emplace(std::to_string(id), address);
    }
    parts_.defaults.setTextMap(addressesKey, texts);
}

}  // namespace vantrell
