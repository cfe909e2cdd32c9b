#pragma once

#include "data/ModelContainer.h"
#include "testing/TemporaryFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace vantrell::testing {

/// A store in a folder of its own.
class StoreFixture {
  public:
    StoreFixture() = default;
    /// Over a copy of a store that is kept.
    explicit StoreFixture(const std::filesystem::path& kept) { std::filesystem::copy_file(kept, file()); }

    [[nodiscard]] std::filesystem::path file() const { return folder_ / "vantrell.sqlite"; }

    /// Opens the store, or reopens it after closing; null if it can't be opened.
    ModelContext* open(const std::string& vfs = {}) {
        container_.reset();
        auto opened = ModelContainer::open({file(), CloudDatabase::none, vfs});
        if (auto* error = std::get_if<StoreError>(&opened)) {
            error_ = error->description;
            return nullptr;
        }
        container_ = std::move(std::get<std::unique_ptr<ModelContainer>>(opened));
        return &container_->mainContext();
    }
    void close() { container_.reset(); }

    [[nodiscard]] const std::string& error() const { return error_; }

  private:
    TemporaryFolder folder_;
    std::unique_ptr<ModelContainer> container_;
    std::string error_;
};

/// Noon UTC of a day, as report dates are.
[[nodiscard]] inline Instant noon(int year, unsigned month, unsigned day) {
    return std::chrono::sys_days{
               CivilDate{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}}} +
           std::chrono::hours(12);
}

/// A sale with a different value in every field.
template <typename Text = std::string_view>
[[nodiscard]] SalesRowOf<Text> fullSalesRow() {
    return {.beginDate = noon(2026, 8, 14),
            .endDate = noon(2026, 8, 15),
            .sku = "SKU-1",
            .title = "Überblick — שלום 🎉",
            .version = "1.2",
            .productType = "IAY",
            .parentSKU = "PARENT",
            .units = -3,
            .proceedsPerUnit = *Decimal::parse("1.4"),
            .proceedsCurrency = "EUR",
            .customerPrice = *Decimal::parse("-1.99"),
            .customerCurrency = "CHF",
            .country = "DE",
            .appleID = 1234567890123,
            .promoCode = "PROMO",
            .subscription = "New",
            .period = "1 Month",
            .device = "iPhone",
            .platforms = "iOS",
            .proceedsReason = "Rate After One Year",
            .client = "client",
            .orderType = "Pre-order"};
}

[[nodiscard]] inline SalesRowView sale(std::int64_t units, const std::string& proceeds) {
    SalesRowView row;
    row.beginDate = noon(2026, 8, 14);
    row.endDate = row.beginDate;
    row.units = units;
    row.proceedsPerUnit = *Decimal::parse(proceeds);
    return row;
}

/// Of all stored lines, in order.
[[nodiscard]] inline std::vector<std::int64_t> unitsOf(ModelContext& context) {
    std::vector<std::int64_t> units;
    for (const SalesRow& row : context.fetchSalesRows()) {
        units.push_back(row.line.units);
    }
    return units;
}

}  // namespace vantrell::testing
