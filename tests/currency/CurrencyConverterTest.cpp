#include "currency/CurrencyConverter.h"
#include "testing/Cases.h"

#include <cstdlib>

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

}  // namespace
}  // namespace vantrell
