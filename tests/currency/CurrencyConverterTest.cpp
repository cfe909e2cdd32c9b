#include "currency/CurrencyConverter.h"
#include "testing/Cases.h"

#include <cstdlib>
#include <limits>

namespace vantrell {
namespace {

using Amounts = std::map<std::string, Decimal, std::less<>>;

Decimal decimal(const char* text) {
    return *Decimal::parse(text);
}

TEST(CurrencyConverter, DividesByOneRateAndMultipliesByTheOther) {
    using Text = const std::string&;
    testing::expectCases<3>(VANTRELL_TEST_DATA "/conversions.tsv", [](Text amount, Text from, Text to) {
        const Rates rates{{"AAA", std::strtod(to.c_str(), nullptr)},
                          {"BBB", std::strtod(from.c_str(), nullptr)}};
        const auto result =
            CurrencyConverter("AAA", rates, std::nullopt).convert(*Decimal::parse(amount), "BBB");
        return result ? result->text() : "none";
    });
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
