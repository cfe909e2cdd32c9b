#include "data/FileCheck.h"

#include "Schema.h"
#include "StoreFailures.h"
#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

namespace vantrell {
namespace {

struct Question {
    const char* damage;
    /// Gives a row where there is damage.
    const char* sql;
};

// A number that was never given reads as the empty text or offer, and what is no number as one: a silent
// zero.
constexpr std::array questions{
    Question{"a text is no text", "SELECT 1 FROM text WHERE typeof(value) <> 'text' LIMIT 1"},
    Question{"lines of sales reports refer to what is missing",
             "SELECT 1 FROM sales_line, (SELECT coalesce(max(id), 0) AS last FROM text) AS text,"
             " (SELECT coalesce(max(id), 0) AS last FROM sales_offer) AS offers"
             " WHERE typeof(beginDate) <> 'integer' OR typeof(offer) <> 'integer'"
             " OR typeof(units) <> 'integer' OR typeof(country) <> 'integer' OR typeof(endDate) <> 'integer'"
             " OR offer NOT BETWEEN 0 AND offers.last"
             " OR NOT coalesce(max(country, version, promoCode, subscription, period, device, platforms,"
             " proceedsReason, client, orderType) <= text.last"
             " AND min(country, version, promoCode, subscription, period, device, platforms,"
             " proceedsReason, client, orderType) >= 0, FALSE) LIMIT 1"},
    Question{"products of sales reports can't be read",
             "SELECT 1 FROM sales_offer, (SELECT coalesce(max(id), 0) AS last FROM text) AS text"
             " WHERE typeof(sku) <> 'integer' OR typeof(title) <> 'integer'"
             " OR typeof(productType) <> 'integer' OR typeof(parentSKU) <> 'integer'"
             " OR typeof(proceedsCurrency) <> 'integer' OR typeof(customerCurrency) <> 'integer'"
             " OR typeof(appleID) <> 'integer'"
             " OR max(sku, title, productType, parentSKU, proceedsCurrency, customerCurrency) > text.last"
             " OR min(sku, title, productType, parentSKU, proceedsCurrency, customerCurrency) < 0"
             " OR CASE typeof(proceedsPerUnit) WHEN 'integer' THEN FALSE WHEN 'text' THEN"
             " proceedsPerUnit GLOB '*[^-.0-9]*' OR proceedsPerUnit NOT GLOB '*[0-9]*'"
             " OR substr(proceedsPerUnit, 2) GLOB '*-*' OR proceedsPerUnit GLOB '*.*.*' ELSE TRUE END"
             " OR typeof(customerPrice) NOT IN ('integer', 'text') LIMIT 1"},
    Question{"lines of finance reports can't be read",
             "SELECT 1 FROM finance_line, (SELECT coalesce(max(id), 0) AS last FROM text) AS text"
             " WHERE typeof(quantity) <> 'integer' OR typeof(partnerShareCurrency) <> 'integer'"
             " OR typeof(title) <> 'integer' OR typeof(country) <> 'integer'"
             " OR typeof(saleOrReturn) <> 'integer' OR typeof(appleID) <> 'integer'"
             " OR NOT coalesce(max(vendorIdentifier, title, productType, partnerShareCurrency,"
             " saleOrReturn, country, promoCode, customerCurrency) <= text.last"
             " AND min(vendorIdentifier, title, productType, partnerShareCurrency,"
             " saleOrReturn, country, promoCode, customerCurrency) >= 0, FALSE)"
             " OR CASE typeof(extendedPartnerShare) WHEN 'integer' THEN FALSE WHEN 'text' THEN"
             " extendedPartnerShare GLOB '*[^-.0-9]*' OR extendedPartnerShare NOT GLOB '*[0-9]*'"
             " OR substr(extendedPartnerShare, 2) GLOB '*-*' OR extendedPartnerShare GLOB '*.*.*' ELSE TRUE "
             "END LIMIT 1"},
    Question{"a view can't be read",
             "SELECT 1 FROM SalesReport, SalesRow, FinanceReport, FinanceRow, RateSet, SyncLogEntry LIMIT 0"},
};

// SQLite takes any bytes for text.
bool holdsBrokenText(SqliteDatabase& database) {
    auto texts = database.prepare(
        "SELECT value FROM text UNION ALL SELECT message FROM sales_report"
        " UNION ALL SELECT message FROM finance_report UNION ALL SELECT message FROM sync_log");
    while (texts.step()) {
        if (!isUtf8(texts.text(0))) {
            return true;
        }
    }
    return false;
}

std::map<std::string, std::string> views(SqliteDatabase& database) {
    std::map<std::string, std::string> texts;
    auto schema = database.prepare("SELECT name, sql FROM sqlite_schema WHERE type = 'view'");
    while (schema.step()) {
        texts.emplace(schema.text(0), schema.text(1));
    }
    return texts;
}

// A damaged text can still be a view, and one that says something else. The person's own may stand beside
// ours.
bool hasForeignView(SqliteDatabase& database) {
    SqliteDatabase blank(":memory:", SqliteDatabase::Mode::readWrite);
    createSchema(blank);
    const auto found = views(database);
    return !std::ranges::all_of(views(blank), [&found](const auto& view) {
        const auto same = found.find(view.first);
        return same != found.end() && same->second == view.second;
    });
}

}  // namespace

std::optional<std::string> FileCheck::run() {
    try {
        database_ = std::make_unique<SqliteDatabase>(path_, SqliteDatabase::Mode::peek);
        if (auto damage = quickCheck(*database_)) {
            return damage;
        }
        for (const Question& question : questions) {
            if (database_->prepare(question.sql).step()) {
                return question.damage;
            }
        }
        if (holdsBrokenText(*database_)) {
            return "a text is no text";
        }
        if (hasForeignView(*database_)) {
            return "a view isn't as it was made";
        }
    } catch (const SqliteError& error) {
        return storeError(error).description;
    }
    return std::nullopt;
}

}  // namespace vantrell
