#include "sample/Catalogue.h"

#include <algorithm>
#include <array>

namespace vantrell::sample {

namespace {

/// A product as its app's team would list it; what it shares with its app is filled in from there.
struct Listing {
    std::string_view sku;
    std::string_view app;
    std::string_view title;
    Offer offer;
    std::string_view period;
    std::int64_t dollarCents;
    Day launched;
    std::uint32_t popularity;
};

constexpr std::string_view tidewatch = "com.brambleworks.tidewatch";
constexpr std::string_view lumen = "com.brambleworks.lumen";
constexpr std::string_view orchard = "com.brambleworks.orchard";
constexpr std::string_view honeycomb = "com.brambleworks.budgetbee";
constexpr std::string_view stackline = "com.brambleworks.stackline.mac";
constexpr std::string_view fieldnotes = "com.brambleworks.fieldnotes";
constexpr std::string_view sudoku = "com.brambleworks.sudokuniwa";
constexpr std::string_view daftar = "com.brambleworks.daftar";
constexpr std::string_view sleepyFox = "com.brambleworks.sleepyfox";
constexpr std::string_view metroSketch = "com.brambleworks.metrosketch";
constexpr std::string_view vokabelfuchs = "com.brambleworks.vokabelfuchs";
// An app that was transferred away before the account's first report: only this product still names it.
constexpr std::string_view skylark = "com.brambleworks.skylark";

constexpr std::string_view collectedStories =
    "All the Stories So Far: The Fox Who Forgot to Yawn, The Lighthouse and the Very Small Wave, Seven Sheep "
    "and "
    "One Late Owl, Grandmother's Pocket Moon, The Train That Went Nowhere Slowly, A Hedgehog Learns to "
    "Whisper, "
    "The Night the Stars Stayed Up, Under the Big Warm Blanket, The Bear Who Counted Backwards, Rain on the "
    "Tin "
    "Roof, The Sleepiest Street in Town, The Cat Who Painted the Dark, How the Mountain Got Its Hat, A "
    "Letter for "
    "the Sandman, Three Lanterns, One More Page, and The Fox Who Remembered After All";

constexpr std::array<Listing, 40> listings{{
    {"tidewatch.pro.month", tidewatch, "Tidewatch Pro", Offer::subscription, "1 Month", 199,
     dayOf(2021, 1, 12), 30},
    {"tidewatch.pro.year", tidewatch, "Tidewatch Pro – One Year", Offer::subscription, "1 Year", 1499,
     dayOf(2021, 1, 12), 22},
    {"tidewatch.harbours", tidewatch, "Harbour Pack", Offer::lasting, "", 299, dayOf(2020, 6, 2), 14},
    {"lumen.plus.month", lumen, "Lumen Plus", Offer::subscription, "1 Month", 399, dayOf(2020, 11, 17), 40},
    {"lumen.plus.year", lumen, "Lumen Plus (Yearly)", Offer::subscription, "1 Year", 2999,
     dayOf(2020, 11, 17), 30},
    {"lumen.lifetime", lumen, "Lumen for Life", Offer::lasting, "", 7999, dayOf(2022, 4, 5), 6},
    {"lumen.papers", lumen, "Handmade Papers", Offer::lasting, "", 199, dayOf(2021, 2, 23), 10},
    {"orchard.seeds.pouch", orchard, "Pouch of Seeds", Offer::consumable, "", 99, dayOf(2021, 3, 9), 90},
    {"orchard.seeds.sack", orchard, "Sack of Seeds", Offer::consumable, "", 499, dayOf(2021, 3, 9), 50},
    {"orchard.seeds.barrel", orchard, "Barrel of Seeds", Offer::consumable, "", 999, dayOf(2021, 3, 9), 24},
    {"orchard.seeds.wagon", orchard, "Wagonload of Seeds", Offer::consumable, "", 1999, dayOf(2021, 3, 9), 9},
    {"orchard.noads", orchard, "Peace and Quiet (No Ads)", Offer::lasting, "", 399, dayOf(2021, 3, 9), 25},
    {"orchard.club.week", orchard, "Gardeners' Club", Offer::subscription, "7 Days", 299, dayOf(2022, 3, 22),
     34},
    {"orchard.harvest", orchard, "Harvest Season Pass", Offer::seasonPass, "", 999, dayOf(2021, 9, 1), 16},
    {"orchard.starter", orchard, "Starter Basket 🧺🍎", Offer::consumable, "", 199, dayOf(2021, 6, 1),
     28},
    {"budgetbee.premium.month", honeycomb, "Premium", Offer::subscription, "1 Month", 499, dayOf(2021, 9, 21),
     36},
    {"budgetbee.premium.year", honeycomb, "Premium Annual", Offer::subscription, "1 Year", 3999,
     dayOf(2021, 9, 21), 28},
    {"budgetbee.family.year", honeycomb, "Family Annual", Offer::subscription, "1 Year", 5999,
     dayOf(2023, 1, 10), 12},
    {"budgetbee.export", honeycomb, "Spreadsheet Export", Offer::lasting, "", 499, dayOf(2021, 11, 2), 9},
    {"stackline.sync.month", stackline, "Stackline Sync", Offer::subscription, "1 Month", 299,
     dayOf(2022, 2, 8), 14},
    {"stackline.sync.year", stackline, "Stackline Sync, Yearly", Offer::subscription, "1 Year", 2499,
     dayOf(2022, 2, 8), 12},
    {"stackline.themes", stackline, "Theme Collection", Offer::lasting, "", 499, dayOf(2022, 10, 25), 5},
    {"fieldnotes.alps", fieldnotes, "Alpine Flora", Offer::lasting, "", 499, dayOf(2022, 6, 14), 8},
    {"fieldnotes.coasts", fieldnotes, "Atlantic Coasts", Offer::lasting, "", 499, dayOf(2022, 9, 6), 7},
    {"fieldnotes.rockies", fieldnotes, "Rocky Mountains", Offer::lasting, "", 799, dayOf(2023, 4, 18), 7},
    {"sudokuniwa.hints.10", sudoku, "ヒント10個", Offer::consumable, "", 99, dayOf(2022, 12, 20), 36},
    {"sudokuniwa.hints.100", sudoku, "ヒント100個", Offer::consumable, "", 399, dayOf(2022, 12, 20), 14},
    {"sudokuniwa.noads", sudoku, "広告なし", Offer::lasting, "", 299, dayOf(2022, 12, 20), 15},
    {"sudokuniwa.month", sudoku, "庭の会員", Offer::subscription, "1 Month", 199, dayOf(2023, 7, 4), 18},
    {"daftar.month", daftar, "الاشتراك الشهري", Offer::subscription, "1 Month", 299, dayOf(2023, 5, 16), 16},
    {"daftar.year", daftar, "الاشتراك السنوي", Offer::subscription, "1 Year", 1999, dayOf(2023, 5, 16), 12},
    {"sleepyfox.month", sleepyFox, "Sleepy Fox Unlimited", Offer::subscription, "1 Month", 599,
     dayOf(2024, 1, 23), 26},
    {"sleepyfox.year", sleepyFox, "Sleepy Fox Unlimited – Year", Offer::subscription, "1 Year", 4499,
     dayOf(2024, 1, 23), 24},
    {"sleepyfox.story", sleepyFox, "One Story 📖", Offer::consumable, "", 199, dayOf(2024, 1, 23), 20},
    {"sleepyfox.collected", sleepyFox, collectedStories, Offer::lasting, "", 2499, dayOf(2024, 11, 19), 6},
    {"metrosketch.lines", metroSketch, "Night Lines", Offer::lasting, "", 199, dayOf(2021, 5, 4), 6},
    {"vokabelfuchs.month", vokabelfuchs, "Vokabelfuchs Plus (Monat)", Offer::subscription, "1 Month", 699,
     dayOf(2024, 9, 10), 20},
    {"vokabelfuchs.year", vokabelfuchs, "Vokabelfuchs Plus (Jahr)", Offer::subscription, "1 Year", 4999,
     dayOf(2024, 9, 10), 18},
    {"vokabelfuchs.lifetime", vokabelfuchs, "Vokabelfuchs für immer", Offer::lasting, "", 9999,
     dayOf(2025, 3, 18), 4},
    {"skylark.retropack", skylark, "Retro Pack", Offer::lasting, "", 299, dayOf(2020, 5, 12), 5},
}};

Item productOf(const Listing& listing, std::int64_t appleID, std::span<const Item> apps) {
    Item product{.appleID = appleID,
                 .sku = listing.sku,
                 .parentSKU = listing.app,
                 .offer = listing.offer,
                 .category = "Games",
                 .period = listing.period,
                 .titles = {{listing.launched, listing.title}},
                 .dollarCents = {{listing.launched, listing.dollarCents}},
                 .launched = listing.launched,
                 .popularity = listing.popularity};
    if (const auto app = std::ranges::find(apps, listing.app, &Item::sku); app != apps.end()) {
        product.hardware = app->hardware;
        product.category = app->category;
        product.withdrawn = app->withdrawn;
        product.home = app->home;
    }
    return product;
}

}  // namespace

std::vector<Item> sampleProducts(std::span<const Item> apps) {
    std::vector<Item> products;
    products.reserve(listings.size());
    std::int64_t appleID = 9900001000;
    for (const auto& listing : listings) {
        products.push_back(productOf(listing, ++appleID, apps));
    }
    return products;
}

}  // namespace vantrell::sample
