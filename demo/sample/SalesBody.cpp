#include "sample/SalesBody.h"

#include "sample/ReportTable.h"
#include "sample/SaleTerms.h"
#include "sample/Territories.h"

#include <array>

namespace vantrell::sample {

namespace {

constexpr std::string_view heading =
    "Provider\tProvider Country\tSKU\tDeveloper\tTitle\tVersion\tProduct Type Identifier\tUnits\t"
    "Developer Proceeds\tBegin Date\tEnd Date\tCustomer Currency\tCountry Code\tCurrency of Proceeds\t"
    "Apple Identifier\tCustomer Price\tPromo Code\tParent Identifier\tSubscription\tPeriod\tCategory\tCMB\t"
    "Device\tSupported Platforms\tProceeds Reason\tPreserved Pricing\tClient\tOrder Type";

// In the order of Device and of Hardware.
constexpr std::array<std::string_view, 4> deviceNames{"iPhone", "iPad", "Desktop", "Apple TV"};
constexpr std::array<std::string_view, 4> platformNames{"iOS", "iOS", "iOS, tvOS", "macOS"};

bool isFirstDownload(const Item& item, Action action) {
    return item.offer == Offer::freeApp && action == Action::purchase;
}

// The price of a refund is negative as well, except that of a subscription.
Money signedPrice(const Item& item, const SaleKey& key) {
    auto price = customerPrice(item, key);
    if (key.action == Action::refund && item.offer != Offer::subscription) {
        price.minor = -price.minor;
    }
    return price;
}

std::string_view subscriptionCell(const Item& item, Action action) {
    if (item.offer != Offer::subscription || action == Action::refund) {
        return {};
    }
    return action == Action::renewal || action == Action::loyalRenewal ? "Renewal" : "New";
}

// Some of the service's currency cells come padded.
std::string paddedCurrency(std::string_view code, const Item& item) {
    return std::string{code} + (item.isApp() ? "" : " ");
}

void writeLine(ReportTable& table, const Item& item, const SaleLine& line, const std::string& begin,
               const std::string& end) {
    const auto& [key, units] = line;
    const auto currency = currencyOf(key);
    table.text("APPLE").text("US").text(item.sku).text("Brambleworks");
    table.text(item.titles[key.title].value);
    table.text(item.isApp() ? releaseText(key.release) : " ");
    table.text(productType(item, key.action)).number(units);
    table.money(proceedsPerUnit(item, key), LeadingZero::dropped).text(begin).text(end);
    table.text(paddedCurrency(currency, item)).text(territories()[key.territory].code);
    table.textOrBlank(isFirstDownload(item, key.action) ? "" : currency).number(item.appleID);
    table.money(signedPrice(item, key)).textOrBlank(key.action == Action::promoCopy ? "CR-RW" : "");
    table.textOrBlank(item.parentSKU).textOrBlank(subscriptionCell(item, key.action));
    table.textOrBlank(item.period).text(item.category).text("");
    table.text(deviceNames[static_cast<std::size_t>(key.device)]);
    table.text(platformNames[static_cast<std::size_t>(item.hardware)]);
    table.textOrBlank(key.action == Action::loyalRenewal ? "Rate After One Year" : "").blank().blank();
    table.textOrBlank(key.action == Action::winBack ? "Win-back" : "").endLine();
}

}  // namespace

std::string salesBody(const SampleAccount& account, const DateRange& range) {
    const auto begin = reportDateCell(range.first);
    const auto end = reportDateCell(range.last);
    ReportTable table{heading};
    for (const auto& line : account.sales(range)) {
        writeLine(table, account.items()[line.key.item], line, begin, end);
    }
    return std::move(table).take();
}

}  // namespace vantrell::sample
