#include "platform/Locale.h"

#include <map>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;

Locale localeNamed(const std::string& name) {
    return Locale({name, name, name, name, name});
}

TEST(Locale, MoneyHasTheDigitsOfItsCurrencyAndTheSignsOfTheLocale) {
    const struct {
        std::string name;
        std::string locale;
        std::string amount;
        std::string currency;
        std::string expected;
    } cases[] = {
        {"Germany", "de_DE.UTF-8@euro", "-1234567.891", "EUR", "-1.234.567,89\u00A0€"},
        {"a refund", "en_US.UTF-8", "-0.7", "USD", "-$0.70"},
        {"a half goes away from zero", "en_US", "0.125", "USD", "$0.13"},
        {"rounded once", "en_US", "0.12499999999999999999999999999999999999", "USD", "$0.12"},
        {"no digits", "en_US", "1234.5", "JPY", "¥1,235"},
        {"three digits", "en_US", "1.2345", "KWD", "KWD\u00A01.235"},
        {"never cash rounding", "en_US", "1.02", "CHF", "CHF\u00A01.02"},
        {"more digits than a double has", "en_US", "12345678901234567890123456789012345.678", "USD",
         "$12,345,678,901,234,567,890,123,456,789,012,345.68"},
        {"markup stays text", "en_US", "1", "<b>\n", "<b>\n\u00A01.00"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(localeNamed(row.locale).money(*Decimal::parse(row.amount), row.currency), row.expected)
            << row.name;
    }
}

TEST(Locale, MoneyIsSpokenByItsNameAndRoundedToWholeUnits) {
    const struct {
        std::string locale;
        std::string amount;
        std::string currency;
        std::string spoken;
        std::string whole;
    } cases[] = {
        {"C", "1234.56", "USD", "1,234.56 US dollars", "$1,235"},
        {"en_US", "-0.4", "EUR", "-0.40 euros", "€0"},
        {"en_US", "1", "JPY", "1 Japanese yen", "¥1"},
        {"de_DE", "1234.56", "USD", "1.234,56 US-Dollar", "1.235\u00A0$"},
        {"ja_JP", "-1234.56", "KWD", "-1,234.560クウェート ディナール", "-KWD\u00A01,235"},
        {"en_US", "1234.56", "FOO", "1,234.56 FOO", "FOO\u00A01,235"},
        {"en_US", "2.5", "", "2.50", "3"},
    };
    for (const auto& row : cases) {
        const auto locale = localeNamed(row.locale);
        const auto amount = *Decimal::parse(row.amount);
        EXPECT_EQ(locale.spokenMoney(amount, row.currency), row.spoken);
        EXPECT_EQ(locale.wholeMoney(amount, row.currency), row.whole);
    }
}

TEST(Locale, StepsOfAnAxisAreShortAndNeverTheSame) {
    const struct {
        std::string locale;
        double amount;
        std::string currency;
        std::string expected;
    } cases[] = {
        {"en_US", -0.0, "USD", "$0"},         {"en_US", 0.1 + 0.2, "USD", "$0.30"},
        {"en_US", 0.025, "USD", "$0.025"},    {"en_US", 7.5, "JPY", "¥7.50"},
        {"en_US", 12, "EUR", "€12"},          {"en_US", -1250, "USD", "-$1.25K"},
        {"en_US", 999'999.999, "USD", "$1M"}, {"de_DE", 12'500, "EUR", "12.500\u00A0€"},
        {"ja_JP", 25'000, "JPY", "￥2.5万"},  {"en_US", 1500, "FOO", "FOO\u00A01.5K"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(localeNamed(row.locale).compactMoney(row.amount, row.currency), row.expected);
    }
}

TEST(Locale, CurrencyAndRegionComeFromTheMonetaryName) {
    const struct {
        std::string locale;
        std::optional<std::string> currency;
        std::optional<std::string> region;
    } cases[] = {
        {"ja_JP.eucJP", "JPY", "JP"},
        {"sr_RS@latin", "RSD", "RS"},
        {"ar_EG@currency=USD", "USD", "EG"},
        {"en_US@currency=<script>", "USD", "US"},
        {"C.UTF-8", std::nullopt, std::nullopt},
        {"POSIX", std::nullopt, std::nullopt},
        {"de", std::nullopt, std::nullopt},
        {"de_AQ", std::nullopt, "AQ"},
        {"@._", std::nullopt, std::nullopt},
        {std::string(100'000, '_'), std::nullopt, std::nullopt},
    };
    for (const auto& row : cases) {
        const Locale locale({row.locale, "fr_FR", "fr_FR", "fr_FR", "fr_FR"});
        EXPECT_EQ(locale.currencyCode(), row.currency) << row.locale.substr(0, 50);
        EXPECT_EQ(locale.regionCode(), row.region) << row.locale.substr(0, 50);
    }
}

TEST(Locale, DatesAreGregorianInTheMannerOfTheLocale) {
    const struct {
        std::string locale;
        std::chrono::weekday firstWeekday;
        std::vector<std::string> texts;
    } cases[] = {
        {"C",
         std::chrono::Sunday,
         {"Tuesday, Mar 3, 2026", "Tue, Mar 3, 2026", "Tue, Mar 3", "Mar 3, 2026", "Mar 3", "March 2026",
          "Mar 2026", "Mar", "Tu", "Mar 3\u2009–\u20098, 2026", "Dec 28, 2026\u2009–\u2009Jan 3, 2027",
          "Mar 3, 2026, 10:02\u202FAM", "Mar 3, 10:02:05\u202FAM"}},
        {"de_DE",
         std::chrono::Monday,
         {"Dienstag, 3. März 2026", "Di., 3. März 2026", "Di., 3. März", "3. März 2026", "3. März",
          "März 2026", "Mär 2026", "Mär", "Di.", "3.–8. März 2026", "28. Dez. 2026\u2009–\u20093. Jan. 2027",
          "3. März 2026, 10:02", "3. März, 10:02:05"}},
        {"fa_IR",
         std::chrono::Saturday,
         {"سه‌شنبه ۳ مارس ۲۰۲۶", "سه‌شنبه ۳ مارس ۲۰۲۶",
          "سه‌شنبه ۳ مارس", "۳ مارس ۲۰۲۶", "۳ مارس", "مارس ۲۰۲۶", "مارس ۲۰۲۶", "مارس", "۳ش",
          "۳ تا ۸ مارس ۲۰۲۶", "۲۸ دسامبر ۲۰۲۶ تا ۳ ژانویه ۲۰۲۷", "۳ مارس ۲۰۲۶، ۱۰:۰۲", "۳ مارس، ۱۰:۰۲:۰۵"}},
    };
    const auto day = 2026y / 3 / 3;
    const Instant morning = std::chrono::sys_days(day) + 9h + 2min + 5s;
    const auto berlin = TimeZone::named("Europe/Berlin").value();
    for (const auto& row : cases) {
        const auto locale = localeNamed(row.locale);
        const std::vector<std::string> texts = {locale.wideWeekdayDate(day),
                                                locale.weekdayDate(day),
                                                locale.weekdayMonthDay(day),
                                                locale.date(day),
                                                locale.monthDay(day),
                                                locale.monthYear(day),
                                                locale.shortMonthYear(day),
                                                locale.shortMonth(day),
                                                locale.shortWeekday(day),
                                                locale.dayRange(day, 2026y / 3 / 8),
                                                locale.dayRange(2026y / 12 / 28, 2027y / 1 / 3),
                                                locale.dateAndTime(morning, berlin),
                                                locale.logTime(morning, berlin)};
        EXPECT_EQ(texts, row.texts) << row.locale;
        EXPECT_EQ(locale.firstWeekday(), row.firstWeekday) << row.locale;
    }
}

TEST(Locale, DistancesInTimeAreNamedWhereTheCalendarAgrees) {
    const auto day = [](std::chrono::year_month_day date) { return Instant(std::chrono::sys_days(date)); };
    // A Tuesday; in Berlin it is ten o'clock.
    const auto now = day(2026y / 3 / 3) + 9h;
    const struct {
        Instant then;
        std::string expected;
    } cases[] = {
        {now - 999ms, "now"},
        {now + 59s, "in 59 seconds"},
        {now - 119s, "1 minute ago"},
        {now + 3min, "in 3 minutes"},
        {now - 24h + 1s, "23 hours ago"},
        {now - 24h, "yesterday"},
        {day(2026y / 3 / 1) + 23h, "yesterday"},
        {day(2026y / 3 / 1) + 22h + 59min, "2 days ago"},
        {now + 6 * 24h, "in 6 days"},
        {now - 7 * 24h, "last week"},
        {day(2026y / 2 / 22) + 9h, "last week"},
        {day(2026y / 2 / 21) + 9h, "1 week ago"},
        {day(2026y / 2 / 4), "3 weeks ago"},
        {day(2026y / 2 / 3), "last month"},
        {day(2026y / 1 / 20), "1 month ago"},
        {day(2025y / 3 / 4), "11 months ago"},
        {day(2025y / 3 / 3), "last year"},
        {day(2024y / 3 / 4), "1 year ago"},
        {day(2028y / 3 / 3), "in 2 years"},
    };
    const auto locale = localeNamed("en_US");
    const auto berlin = TimeZone::named("Europe/Berlin").value();
    for (const auto& row : cases) {
        EXPECT_EQ(locale.relativeTime(row.then, now, berlin), row.expected) << row.expected;
    }
    const auto longDay = day(2026y / 10 / 24) + 22h;
    EXPECT_EQ(locale.relativeTime(longDay, longDay + 24h, berlin), "24 hours ago");
    EXPECT_EQ(localeNamed("de_DE").relativeTime(now - 48h, now, berlin), "vorgestern");
}

TEST(Locale, RegionsAreNamedInTheLanguageOfTheMessages) {
    const Locale french({"C", "C", "C", "C", "fr_FR@euro"});
    const std::pair<std::string, std::string> cases[] = {{"DE", "Allemagne"}, {"XK", "Kosovo"}, {"ZZ", "ZZ"},
                                                         {"QQ", "QQ"},        {"de", "de"},     {"", ""}};
    for (const auto& [code, name] : cases) {
        EXPECT_EQ(french.regionName(code), name);
    }
    EXPECT_EQ(french.languageTag(), "fr-FR");
    EXPECT_FALSE(french.isRightToLeft());
    EXPECT_TRUE(localeNamed("ar_EG@currency=USD").isRightToLeft());
    EXPECT_EQ(localeNamed("sr_RS@latin").languageTag(), "sr-Latn-RS");
    EXPECT_EQ(localeNamed("C").languageTag(), "en");
}

TEST(Locale, EachCategoryFollowsItsOwnName) {
    const Locale locale({"ja_JP", "de_DE", "fr_CH", "sv_SE", "C"});
    EXPECT_EQ(locale.money(Decimal(1000), "JPY"), "￥1,000");
    EXPECT_EQ(locale.weekdayMonthDay(2026y / 3 / 3), "Di., 3. März");
    EXPECT_EQ(locale.count(-1'234'567), "-1\u202F234\u202F567");
    EXPECT_GT(locale.compareNames("Ärlig", "Zebra"), 0);
}

TEST(Locale, NamesAreOrderedByTheLocaleWithoutRegardToCase) {
    const auto german = localeNamed("de_DE");
    EXPECT_LT(german.compareNames("Ärlig", "Zebra"), 0);
    EXPECT_EQ(german.compareNames("SKY notes", "Sky Notes"), 0);
    EXPECT_NE(german.compareNames("resume", "résumé"), 0);
    EXPECT_LT(localeNamed("C").compareNames("apple", "Banana"), 0);
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
