#include "testing/EarningsFixture.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;
using testing::Line;

std::string described(const Catalog& catalog) {
    std::string text;
    for (const AppInfo& app : catalog.apps()) {
        text += std::to_string(app.id) + " " + app.title + "; ";
    }
    for (const ProductInfo& product : catalog.products()) {
        text += std::to_string(product.id) + " " + product.title + " of " +
                (product.appID ? std::to_string(*product.appID) : "none") +
                (product.isSubscription ? " sub; " : "; ");
    }
    return text;
}

struct Case {
    const char* name;
    std::vector<Line> first;   ///< on 18 November
    std::vector<Line> second;  ///< on 19 November
    const char* catalog;
};

std::vector<Case> catalogs() {
    return {
        {"the latest title wins", {{.title = "Old"}}, {{.title = "New"}}, "1 New; "},
        {"of one day the later line", {{.title = "A"}, {.title = "B"}}, {}, "1 B; "},
        {"an empty title shows the SKU", {{.sku = "sku.one"}}, {}, "1 sku.one; "},
        {"no identifier, no app", {{.appleID = 0, .title = "A"}}, {}, ""},
        {"only updates are an app all the same", {{.productType = "7T", .title = "A"}}, {}, "1 A; "},
        {"an update and a product line make a product",
         {{.productType = "7", .title = "A"}},
         {{.productType = "IA1", .title = "A"}},
         "1 A of none; "},
        {"an app and a product line make an app",
         {{.productType = "IA1", .title = "A"}},
         {{.productType = "F1", .title = "A"}},
         "1 A; "},
        {"another kind makes neither", {{.productType = "X", .title = "A"}}, {}, ""},
        {"a product finds its app by the parent's SKU",
         {{.title = "App"},
          {.appleID = 2, .productType = "IAY", .title = "P", .sku = "p", .parentSKU = "app"}},
         {},
         "1 App; 2 P of 1 sub; "},
        {"a parent that is unknown",
         {{.appleID = 2, .productType = "IA1-M", .title = "P", .parentSKU = "gone"}},
         {},
         "2 P of none; "},
        {"no parent is no app, even one without an SKU",
         {{.title = "App", .sku = ""}, {.appleID = 2, .productType = "IA3", .title = "P"}},
         {},
         "1 App; 2 P of none; "},
        {"the latest parent counts, also an empty one",
         {{.title = "App"},
          {.appleID = 2, .productType = "IA1", .title = "P", .sku = "p", .parentSKU = "app"}},
         {{.appleID = 2, .productType = "IA1", .title = "P", .sku = "p"}},
         "1 App; 2 P of none; "},
        {"types in lower case are products but no subscriptions",
         {{.appleID = 2, .productType = " iay", .title = "P"}},
         {},
         "2 P of none; "},
        {"titles in the order of the language, whatever their case",
         {{.appleID = 1, .title = "beta"},
          {.appleID = 2, .title = "Alpha"},
          {.appleID = 3, .title = "Ärger"}},
         {},
         "2 Alpha; 3 Ärger; 1 beta; "},
    };
}

TEST(Catalog, IsWorkedOutFromTheLines) {
    for (const Case& row : catalogs()) {
        EarningsFixture fixture;
        fixture.daily("2026-11-18", row.first);
        fixture.daily("2026-11-19", row.second);
        EXPECT_EQ(described(fixture.reload().catalog()), row.catalog) << row.name;
    }
}

TEST(Catalog, ForgetsWhatNoLineSpeaksOfAnyMore) {
    EarningsFixture fixture;
    fixture.daily("2026-11-18", {{.appleID = 1, .title = "A"}, {.appleID = 2, .title = "B"}});
    fixture.reload();
    fixture.daily("2026-11-18", {{.appleID = 2, .title = "B"}});
    EXPECT_EQ(described(fixture.reload().catalog()), "2 B; ");
}

}  // namespace
}  // namespace vantrell
