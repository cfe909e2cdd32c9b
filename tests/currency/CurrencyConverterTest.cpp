#include "currency/CurrencyConverter.h"

#include <limits>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using Amounts = std::map<std::string, Decimal, std::less<>>;

Decimal decimal(const char* text) {
    return *Decimal::parse(text);
}

TEST(CurrencyConverter, DividesByOneRateAndMultipliesByTheOther) {
    struct Case {
        const char* name;
        double from;
        double to;
        const char* amount;
        const char* result;
    };
    const std::vector<Case> cases = {
        {"whole rates", 2, 5, "100", "250"},
        {"a rate is the number of its shortest text", 1, 1.3641, "1000", "1364.1"},
        {"division comes first and is rounded at 38 digits", 3, 3, "1",
         "0.99999999999999999999999999999999999999"},
        {"a refund", 4, 2, "-7.02", "-3.51"},
        {"very small rates", 5e-324, 5e-324, "12.34", "12.34"},
    };
    for (const Case& row : cases) {
        const CurrencyConverter converter{"AAA", {{"AAA", row.to}, {"BBB", row.from}}, std::nullopt};
        const auto result = converter.convert(decimal(row.amount), "BBB");
        ASSERT_TRUE(result) << row.name;
        EXPECT_EQ(result->text(), row.result) << row.name;
    }
}

TEST(CurrencyConverter, NeedsNoRateForTheDisplayCurrencyAndNamesWhatItCanNotConvert) {
    const CurrencyConverter converter{"EUR", {}, std::nullopt};
    const auto total =
        converter.total(Amounts{{"USD", decimal("1")}, {"EUR", decimal("2.50")}, {"CHF", decimal("3")}});
    EXPECT_EQ(total, (ConvertedTotal{decimal("2.5"), {"CHF", "USD"}}));
    EXPECT_EQ(converter.total({}), ConvertedTotal());
}

TEST(CurrencyConverter, TakesARateThatIsNoUsableNumberForMissing) {
    for (const double rate :
         {0.0, -1.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        const CurrencyConverter from{"EUR", {{"EUR", 1}, {"USD", rate}}, std::nullopt};
        EXPECT_EQ(from.convert(Decimal(1), "USD"), std::nullopt) << rate;
        const CurrencyConverter to{"EUR", {{"EUR", rate}, {"USD", 1}}, std::nullopt};
        EXPECT_EQ(to.convert(Decimal(1), "USD"), std::nullopt) << rate;
        EXPECT_EQ(to.convert(Decimal(1), "EUR"), Decimal(1)) << rate;
    }
}

}  // namespace
}  // namespace vantrell
