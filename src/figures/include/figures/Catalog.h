#pragma once

#include "figures/AppFilter.h"
#include "figures/SalesRows.h"
#include "locale/Locale.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace vantrell {

struct AppInfo {
    std::int64_t id = 0;  ///< Apple identifier
    std::string sku;
    std::string title;
    bool operator==(const AppInfo&) const = default;
};

struct ProductInfo {
    std::int64_t id = 0;  ///< Apple identifier
    std::string sku;
    std::string title;
    std::optional<std::int64_t> appID;  ///< the owning app; absent when the reports never showed it
    bool isSubscription = false;
    bool operator==(const ProductInfo&) const = default;
};

/// The apps and in-app products that the sales lines speak of, under their latest titles, and which app owns
/// which product. The reports hold no such list.
class Catalog {
  public:
    Catalog() = default;
    Catalog(const SalesRows& rows, const Locale& locale);

    /// In the order of their titles.
    [[nodiscard]] const std::vector<AppInfo>& apps() const { return apps_; }
    [[nodiscard]] const std::vector<ProductInfo>& products() const { return products_; }
    /// An identifier stands in at most one of the two.
    [[nodiscard]] const std::map<std::int64_t, AppInfo>& appByID() const { return appByID_; }
    [[nodiscard]] const std::map<std::int64_t, ProductInfo>& productByID() const { return productByID_; }

    /// The app itself, or the app that owns the product; absent for what belongs to no known app.
    [[nodiscard]] std::optional<std::int64_t> owningApp(std::int64_t appleID) const;

    /// Whether what belongs to this identifier is of one of the apps.
    [[nodiscard]] bool isOf(std::int64_t appleID, const std::set<std::int64_t>& apps) const {
        const auto owner = owningApp(appleID);
        return owner && apps.contains(*owner);
    }

    bool operator==(const Catalog&) const = default;

  private:
    std::vector<AppInfo> apps_;
    std::vector<ProductInfo> products_;
    std::map<std::int64_t, AppInfo> appByID_;
    std::map<std::int64_t, ProductInfo> productByID_;
};

}  // namespace vantrell
