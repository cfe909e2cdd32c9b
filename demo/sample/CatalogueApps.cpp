#include "sample/Catalogue.h"

namespace vantrell::sample {

namespace {

// Identifiers from 9900000000 on belong to nobody.
std::vector<Item> everyday() {
    return {
        {.appleID = 9900000101,
         .sku = "com.brambleworks.tidewatch",
         .offer = Offer::paidApp,
         .category = "Weather",
         .titles = {{dayOf(2020, 5, 12), "Tidewatch"}},
         .dollarCents = {{dayOf(2020, 5, 12), 299}, {dayOf(2023, 3, 1), 499}, {dayOf(2026, 2, 1), 599}},
         .launched = dayOf(2020, 5, 12),
         .popularity = 40},
        {.appleID = 9900000102,
         .sku = "com.brambleworks.kettle",
         .offer = Offer::paidApp,
         .hardware = Hardware::iPhone,
         .category = "Food & Drink",
         .titles = {{dayOf(2020, 8, 4), "Kettle: Tea Timer"}},
         .dollarCents = {{dayOf(2020, 8, 4), 99}},
         .launched = dayOf(2020, 8, 4),
         .popularity = 12},
        {.appleID = 9900000103,
         .sku = "com.brambleworks.lumen",
         .offer = Offer::freeApp,
         .category = "Lifestyle",
         .titles = {{dayOf(2020, 11, 17), "Lumen Journal: Private Diary"}},
         .launched = dayOf(2020, 11, 17),
         .popularity = 55},
        {.appleID = 9900000104,
         .sku = "com.brambleworks.budgetbee",
         .offer = Offer::freeApp,
         .category = "Finance",
         .titles = {{dayOf(2021, 9, 21), "Budget Bee"},
                    {dayOf(2026, 4, 14), "Honeycomb — Household Budget & Bills"}},
         .launched = dayOf(2021, 9, 21),
         .popularity = 48},
    };
}

std::vector<Item> workAndTravel() {
    return {
        {.appleID = 9900000105,
         .sku = "com.brambleworks.stackline.mac",
         .offer = Offer::macApp,
         .hardware = Hardware::mac,
         .category = "Developer Tools",
         .titles = {{dayOf(2022, 2, 8), "Stackline"}},
         .dollarCents = {{dayOf(2022, 2, 8), 2999}, {dayOf(2025, 1, 15), 3499}},
         .launched = dayOf(2022, 2, 8),
         .popularity = 18},
        {.appleID = 9900000106,
         .sku = "com.brambleworks.fieldnotes",
         .offer = Offer::paidApp,
         .hardware = Hardware::iPad,
         .category = "Reference",
         .titles = {{dayOf(2022, 6, 14), "Fieldnotes Atlas"}},
         .dollarCents = {{dayOf(2022, 6, 14), 1499}},
         .launched = dayOf(2022, 6, 14),
         .popularity = 15},
        {.appleID = 9900000107,
         .sku = "com.brambleworks.metrosketch",
         .offer = Offer::paidApp,
         .category = "Navigation",
         .titles = {{dayOf(2020, 9, 29), "Metro Sketch"}},
         .dollarCents = {{dayOf(2020, 9, 29), 199}},
         .launched = dayOf(2020, 9, 29),
         .withdrawn = dayOf(2024, 8, 31),
         .popularity = 14},
        {.appleID = 9900000108,
         .sku = "com.brambleworks.quiettools",
         .offer = Offer::bundle,
         .category = "Utilities",
         .titles = {{dayOf(2023, 10, 3), "Quiet Tools: Tidewatch + Kettle"}},
         .dollarCents = {{dayOf(2023, 10, 3), 549}},
         .launched = dayOf(2023, 10, 3),
         .popularity = 6},
    };
}

std::vector<Item> playAndLearning() {
    return {
        {.appleID = 9900000109,
         .sku = "com.brambleworks.orchard",
         .offer = Offer::freeApp,
         .category = "Games",
         .titles = {{dayOf(2021, 3, 9), "Pocket Orchard"}},
         .launched = dayOf(2021, 3, 9),
         .popularity = 100},
        {.appleID = 9900000110,
         .sku = "com.brambleworks.sudokuniwa",
         .offer = Offer::freeApp,
         .category = "Games",
         .titles = {{dayOf(2022, 12, 20), "数独の庭 ― 毎日の静かなパズル"}},
         .launched = dayOf(2022, 12, 20),
         .popularity = 45,
         .home = "JP"},
        {.appleID = 9900000111,
         .sku = "com.brambleworks.daftar",
         .offer = Offer::freeApp,
         .hardware = Hardware::iPhone,
         .category = "Finance",
         .titles = {{dayOf(2023, 5, 16), "دفتر المصاريف – ميزانية الأسرة اليومية"}},
         .launched = dayOf(2023, 5, 16),
         .popularity = 30,
         .home = "AE"},
        {.appleID = 9900000112,
         .sku = "com.brambleworks.sleepyfox",
         .offer = Offer::freeApp,
         .category = "Books",
         .titles = {{dayOf(2024, 1, 23), "🦊🌙 Sleepy Fox: Bedtime Stories"}},
         .launched = dayOf(2024, 1, 23),
         .popularity = 38},
        {.appleID = 9900000113,
         .sku = "com.brambleworks.vokabelfuchs",
         .offer = Offer::freeApp,
         .category = "Education",
         .titles =
             {{dayOf(2024, 9, 10),
               "Vokabelfuchs – Sprachen lernen mit Karteikarten, Aussprache und Wiederholung in der "
               "richtigen "
               "Reihenfolge: Englisch, Französisch, Italienisch, Spanisch, Portugiesisch, Niederländisch, "
               "Schwedisch, Japanisch und Koreanisch für Schule, Reise, Studium und Beruf"}},
         .launched = dayOf(2024, 9, 10),
         .popularity = 34,
         .home = "DE"},
    };
}

}  // namespace

std::vector<Item> sampleApps() {
    std::vector<Item> apps;
    for (const auto& shelf : {everyday(), workAndTravel(), playAndLearning()}) {
        apps.insert(apps.end(), shelf.begin(), shelf.end());
    }
    return apps;
}

}  // namespace vantrell::sample
