#include "platform/RequestUrl.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(RequestUrl, EncodesItsQueryItemsInOrder) {
    const std::vector<QueryItem> items{{"filter[a]", "1&b=2"}, {"c", "+ \u00E9~"}, {"empty", ""}};
    EXPECT_EQ(requestUrl("https://host.example", "/v1/a", items),
              "https://host.example/v1/a?filter%5Ba%5D=1%26b%3D2&c=%2B%20%C3%A9~&empty=");
    EXPECT_EQ(requestUrl("http://127.0.0.1:8080", "/", {}), "http://127.0.0.1:8080/");
}

TEST(RequestUrl, NeedsAnOriginAndAPath) {
    for (const std::string_view origin :
         {"", "host.example", "//host.example", "ftp://host.example", "https://", "https://host.example/",
          "https://user@host.example", "https://host.example?a=b", "https://host.example#a", "https://a b"}) {
        EXPECT_EQ(requestUrl(origin, "/v1", {}), std::nullopt) << origin;
    }
    EXPECT_EQ(requestUrl("https://host", ".example/v1", {}), std::nullopt)
        << "the host must end where it ends";
}

}  // namespace
}  // namespace vantrell
