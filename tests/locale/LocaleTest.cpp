#include "locale/Locale.h"
#include "testing/Cases.h"
#include "testing/Golden.h"

#include <map>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using testing::expectCases;
using Text = const std::string&;

const std::string tables = VANTRELL_TEST_DATA "/locale/";

Locale localeNamed(const std::string& name) {
    return Locale({name, name, name, name, name});
}

TEST(Locale, MoneyHasTheDigitsOfItsCurrencyAndTheSignsOfTheLocale) {
    expectCases<3>(tables + "money.tsv", [](Text locale, Text amount, Text currency) {
        return localeNamed(locale).money(*Decimal::parse(amount), currency);
    });
}

TEST(Locale, MoneyIsSpokenByItsNameAndRoundedToWholeUnits) {
    expectCases<3>(tables + "spoken.tsv", [](Text name, Text amount, Text currency) {
        const auto locale = localeNamed(name);
        const auto number = *Decimal::parse(amount);
        return locale.spokenMoney(number, currency) + " | " + locale.wholeMoney(number, currency);
    });
}

TEST(Locale, StepsOfAnAxisAreShortAndNeverTheSame) {
    expectCases<3>(tables + "axis.tsv", [](Text locale, Text amount, Text currency) {
        return localeNamed(locale).compactMoney(std::stod(amount), currency);
    });
}

TEST(Locale, CurrencyAndRegionComeFromTheMonetaryName) {
    expectCases<1>(tables + "regions.tsv", [](Text name) {
        const Locale locale({name, "fr_FR", "fr_FR", "fr_FR", "fr_FR"});
        return locale.currencyCode().value_or("none") + " " + locale.regionCode().value_or("none");
    });
    EXPECT_EQ(localeNamed(std::string(100'000, '_')).regionCode(), std::nullopt);
}

TEST(Locale, DatesAreGregorianInTheMannerOfTheLocale) {
    const auto day = 2026y / 3 / 3;
    const Instant morning = std::chrono::sys_days(day) + 9h + 2min + 5s;
    const auto berlin = TimeZone::named("Europe/Berlin").value();
    std::string texts;
    for (const auto* name : {"C", "de_DE", "fa_IR"}) {
        const auto locale = localeNamed(name);
        for (const auto& text :
             {std::string(name) + ", the week begins on " +
                  std::to_string(locale.firstWeekday().iso_encoding()),
              locale.wideWeekdayDate(day), locale.weekdayDate(day), locale.weekdayMonthDay(day),
              locale.date(day), locale.monthDay(day), locale.monthYear(day), locale.shortMonthYear(day),
              locale.shortMonth(day), locale.shortWeekday(day), locale.dayRange(day, 2026y / 3 / 8),
              locale.dayRange(2026y / 12 / 28, 2027y / 1 / 3), locale.dateAndTime(morning, berlin),
              locale.logTime(morning, berlin)}) {
            texts += text + "\n";
        }
    }
    testing::expectMatchesFile(texts, tables + "dates.txt");
}

TEST(Locale, DistancesInTimeAreNamedWhereTheCalendarAgrees) {
    expectCases<3>(tables + "distances.tsv", [](Text locale, Text now, Text then) {
        const auto berlin = TimeZone::named("Europe/Berlin").value();
        return localeNamed(locale).relativeTime(testing::instantOf(then), testing::instantOf(now), berlin);
    });
}

TEST(Locale, RegionsAreNamedInTheLanguageOfTheMessages) {
    expectCases<2>(tables + "languages.tsv", [](Text messages, Text region) {
        const Locale locale({"C", "C", "C", "C", messages});
        return locale.languageTag() + ": " + locale.regionName(region);
    });
}

TEST(Locale, EachCategoryFollowsItsOwnName) {
    const Locale locale({"ja_JP", "de_DE", "fr_CH", "sv_SE", "C"});
    EXPECT_EQ(locale.money(Decimal(1000), "JPY"), "￥1,000");
    EXPECT_EQ(locale.weekdayMonthDay(2026y / 3 / 3), "Di., 3. März");
    EXPECT_EQ(locale.count(-1'234'567), "-1\u202F234\u202F567");
    EXPECT_GT(locale.compareNames("Ärlig", "Zebra"), 0);
    EXPECT_EQ(locale.compareNames("SKY notes", "Sky Notes"), 0);
    EXPECT_NE(locale.compareNames("resume", "résumé"), 0);
}

TEST(Locale, TheEnvironmentNamesEachCategoryUnlessAllAreOverruled) {
    using Environment = std::map<std::string, std::string>;
    const auto read = [](const Environment& environment) {
        return LocaleNames::fromEnvironment([&environment](const char* name) {
            const auto found = environment.find(name);
            return found == environment.end() ? std::nullopt : std::optional(found->second);
        });
    };
    const auto mixed = read({{"LANG", "en_US"}, {"LC_TIME", "de_DE"}, {"LC_MONETARY", ""}, {"LC_ALL", ""}});
    EXPECT_EQ(mixed.time, "de_DE");
    EXPECT_EQ(mixed.monetary, "en_US");
    EXPECT_EQ(read({{"LANG", "en_US"}, {"LC_COLLATE", "de_DE"}, {"LC_ALL", "fr_FR"}}).collate, "fr_FR");
    EXPECT_EQ(read({}).numeric, "C");
}

}  // namespace
}  // namespace vantrell
