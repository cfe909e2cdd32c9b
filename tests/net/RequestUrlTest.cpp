#include "net/RequestUrl.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(RequestUrl, EncodesItsQueryItemsInOrder) {
    const std::vector<QueryItem> items{{"filter[a]", "1&b=2"}, {"c", "+ \u00E9~"}, {"empty", ""}};
    EXPECT_EQ(requestUrl("https://host.example", "/v1/a", items),
              "https://host.example/v1/a?filter%5Ba%5D=1%26b%3D2&c=%2B%20%C3%A9~&empty=");
    EXPECT_EQ(requestUrl("https://host", ".example/v1", {}), std::nullopt) << "a host ends where it ends";
    EXPECT_EQ(requestUrl("http://127.0.0.1:8080", "/", {}), "http://127.0.0.1:8080/");
}

}  // namespace
}  // namespace vantrell
