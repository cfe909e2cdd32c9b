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
        {"India", "hi_IN", "1234567.5", "INR", "₹12,34,567.50"},
        {"Egypt", "ar_EG.UTF-8", "12.5", "USD", "\u200F١٢٫٥٠\u00A0US$"},
        {"more digits than a double has", "en_US", "12345678901234567890123456789012345.678", "USD",
         "$12,345,678,901,234,567,890,123,456,789,012,345.68"},
        {"markup stays text", "en_US", "1", "<b>\n", "<b>\n\u00A01.00"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(localeNamed(row.locale).money(*Decimal::parse(row.amount), row.currency), row.expected)
            << row.name;
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

TEST(Locale, DatesAreGregorianInTheOrderOfTheLocale) {
    const Instant evening = std::chrono::sys_days(2026y / 11 / 22) + 21h + 2min;
    const auto berlin = TimeZone::named("Europe/Berlin").value();
    const struct {
        std::string locale;
        std::string dateAndTime;
        std::string weekday;
    } cases[] = {
        {"en_US", "Nov 22, 2026, 10:02\u202FPM", "Tue, Mar 3"},
        {"de_DE", "22. Nov. 2026, 22:02", "Di., 3. März"},
        {"th_TH", "22 พ.ย. 2026 22:02", "อ. 3 มี.ค."},
        {"fa_IR", "۲۲ نوامبر ۲۰۲۶، ۲۲:۰۲", "سه‌شنبه ۳ مارس"},
    };
    for (const auto& row : cases) {
        const auto locale = localeNamed(row.locale);
        EXPECT_EQ(locale.dateAndTime(evening, berlin), row.dateAndTime) << row.locale;
        EXPECT_EQ(locale.weekdayMonthDay(2026y / 3 / 3), row.weekday) << row.locale;
    }
}

TEST(Locale, WeeksAndMonthsAreWrittenInTheMannerOfTheLocale) {
    const struct {
        std::string locale;
        std::string week;
        std::string overTheYear;
        std::string month;
        std::chrono::weekday firstWeekday;
    } cases[] = {
        {"C.UTF-8", "Mar 2\u2009–\u20098, 2026", "Dec 28, 2026\u2009–\u2009Jan 3, 2027", "March 2026",
         std::chrono::Sunday},
        {"en_US", "Mar 2\u2009–\u20098, 2026", "Dec 28, 2026\u2009–\u2009Jan 3, 2027", "March 2026",
         std::chrono::Sunday},
        {"en_GB", "2–8 Mar 2026", "28 Dec 2026\u2009–\u20093 Jan 2027", "March 2026", std::chrono::Monday},
        {"de_DE", "2.–8. März 2026", "28. Dez. 2026\u2009–\u20093. Jan. 2027", "März 2026",
         std::chrono::Monday},
        {"ja_JP", "2026年3月2日～8日", "2026年12月28日～2027年1月3日", "2026年3月", std::chrono::Sunday},
        {"ar_EG", "٢–٨ مارس، ٢٠٢٦", "٢٨ ديسمبر، ٢٠٢٦ – ٣ يناير، ٢٠٢٧", "مارس ٢٠٢٦", std::chrono::Saturday},
    };
    for (const auto& row : cases) {
        const auto locale = localeNamed(row.locale);
        EXPECT_EQ(locale.dayRange(2026y / 3 / 2, 2026y / 3 / 8), row.week) << row.locale;
        EXPECT_EQ(locale.dayRange(2026y / 12 / 28, 2027y / 1 / 3), row.overTheYear) << row.locale;
        EXPECT_EQ(locale.monthYear(2026y / 3 / 2), row.month) << row.locale;
        EXPECT_EQ(locale.firstWeekday(), row.firstWeekday) << row.locale;
    }
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
