#include "data/FileCheck.h"

#include <array>
#include <string_view>

namespace vantrell {
namespace {

struct Question {
    const char* damage;
    /// Gives a row where there is damage.
    const char* sql;
};

// A number that was never given reads as the empty text or offer, which would be a silent zero.
constexpr std::array questions{
    Question{"lines of sales reports refer to what is missing",
             "SELECT 1 FROM sales_line, (SELECT coalesce(max(id), 0) AS last FROM text) AS text,"
             " (SELECT coalesce(max(id), 0) AS last FROM sales_offer) AS offers"
             " WHERE offer > offers.last OR typeof(beginDate) <> 'integer' OR typeof(offer) <> 'integer'"
             " OR typeof(units) <> 'integer' OR typeof(endDate) <> 'integer'"
             " OR coalesce(max(country, version, promoCode, subscription, period, device, platforms,"
             " proceedsReason, client, orderType) > text.last, TRUE) LIMIT 1"},
    Question{"products of sales reports refer to what is missing",
             "SELECT 1 FROM sales_offer, (SELECT coalesce(max(id), 0) AS last FROM text) AS text"
             " WHERE proceedsPerUnit IS NULL OR customerPrice IS NULL"
             " OR coalesce(max(sku, title, productType, parentSKU, proceedsCurrency, customerCurrency)"
             " > text.last, TRUE) LIMIT 1"},
    Question{"lines of finance reports refer to what is missing",
             "SELECT 1 FROM finance_line, (SELECT coalesce(max(id), 0) AS last FROM text) AS text"
             " WHERE typeof(quantity) <> 'integer' OR extendedPartnerShare IS NULL"
             " OR coalesce(max(vendorIdentifier, title, productType, partnerShareCurrency, saleOrReturn,"
             " country, promoCode, customerCurrency) > text.last, TRUE) LIMIT 1"},
};

}  // namespace

std::optional<std::string> FileCheck::run() {
    try {
        database_ = std::make_unique<SqliteDatabase>(path_, SqliteDatabase::Mode::peek);
        auto check = database_->prepare("PRAGMA quick_check(1)");
        if (check.step() && check.text(0) != "ok") {
            // The lines above the last only say which database it is.
            const std::string_view found = check.text(0);
            return std::string(found.substr(found.rfind('\n') + 1));
        }
        for (const Question& question : questions) {
            if (database_->prepare(question.sql).step()) {
                return question.damage;
            }
        }
    } catch (const SqliteError& error) {
        return error.what();
    }
    return std::nullopt;
}

}  // namespace vantrell
