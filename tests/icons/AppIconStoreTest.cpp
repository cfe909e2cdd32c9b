#include "base/TaskScope.h"
#include "icons/AppIconStore.h"
#include "testing/Cases.h"
#include "testing/MemoryDefaults.h"
#include "testing/ScriptedHttp.h"
#include "testing/SlowHttp.h"

#include <memory>
#include <numeric>

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::StartsWith;

constexpr auto germany = "de_DE.UTF-8";
constexpr auto nowhere = "C";
constexpr auto nothingFound = R"({"results":[]})";

class AppIconStoreTest : public ::testing::Test {
  protected:
    std::unique_ptr<AppIconStore> storeIn(const char* localeName) {
        locale = std::make_unique<Locale>(LocaleNames{localeName, "C", "C", "C", "C"});
        auto store = std::make_unique<AppIconStore>(AppIconStore::Parts{http, defaults, *locale},
                                                    "https://lookup.test");
        QObject::connect(store.get(), &AppIconStore::urlsChanged, store.get(), [this] { ++changes; });
        return store;
    }
    /// The query of each request, in order.
    std::vector<std::string> queries() const {
        const std::string path = "https://lookup.test/lookup?";
        std::vector<std::string> texts;
        for (const auto& request : http.requests) {
            EXPECT_TRUE(request.url.starts_with(path)) << request.url;
            texts.push_back(request.url.substr(path.size()));
        }
        return texts;
    }

    testing::ScriptedHttp http;
    testing::MemoryDefaults defaults;
    std::unique_ptr<Locale> locale;
    int changes = 0;
};

TEST_F(AppIconStoreTest, AsksTheUsersStorefrontAndThenTheLargestForWhatIsMissing) {
    constexpr auto both = R"({"results":[{"trackId":1,"artworkUrl100":"https://a/1"},
                                         {"trackId":2,"artworkUrl100":"https://a/2"}]})";
    constexpr auto first = R"({"results":[{"trackId":1,"artworkUrl100":"https://a/1"}]})";
    const struct {
        const char* name;
        const char* locale;
        std::vector<const char*> answers;
        std::vector<std::string> queries;
        int changes;
        int writes;
    } cases[] = {
        {"all found", germany, {both}, {"id=1%2C2&country=DE"}, 1, 1},
        {"one not sold here", germany, {first, both}, {"id=1%2C2&country=DE", "id=2&country=US"}, 2, 1},
        {"found nowhere",
         germany,
         {nothingFound, "no JSON"},
         {"id=1%2C2&country=DE", "id=1%2C2&country=US"},
         0,
         0},
        {"at home there", "en_US", {first}, {"id=1%2C2&country=US"}, 1, 1},
        {"no region", nowhere, {first, nothingFound}, {"id=1%2C2", "id=2&country=US"}, 1, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        http.requests.clear();
        changes = defaults.writes = 0;
        defaults.remove("appIconURLs");
        for (const auto* answer : c.answers) {
            http.answer(404, answer);
        }
        const auto store = storeIn(c.locale);
        for (int time = 0; time < 2; ++time) {
            QCoro::waitFor(store->loadIcons({1, 2}));
            EXPECT_EQ(queries(), c.queries) << "the second time nothing is asked";
        }
        EXPECT_EQ(changes, c.changes);
        EXPECT_EQ(defaults.writes, c.writes);
    }
}

TEST_F(AppIconStoreTest, KnowsAgainWhatItFoundAndDropsWhatItCanNotRead) {
    defaults.setTextMap("appIconURLs", {{"", "https://a/0"},
                                        {"12x", "https://a/1"},
                                        {"99999999999999999999", "https://a/2"},
                                        {"3", ""},
                                        {"4", "https://[/"},
                                        {"5", "https://a/5"}});
    http.answer(200, R"({"results":[{"trackId":6,"artworkUrl100":"https://a/6"}]})");
    const auto store = storeIn("en_US");
    EXPECT_THAT(store->urls(), ElementsAre(Pair(5, "https://a/5")));
    QCoro::waitFor(store->loadIcons({5}));
    EXPECT_THAT(queries(), IsEmpty());
    QCoro::waitFor(store->loadIcons({5, 6}));
    EXPECT_THAT(queries(), ElementsAre("id=6&country=US"));
    EXPECT_EQ(defaults.textMap("appIconURLs"), (TextMap{{"5", "https://a/5"}, {"6", "https://a/6"}}));
}

TEST_F(AppIconStoreTest, AsksForAHundredAtATimeAndAgainWhereNobodyAnswered) {
    std::vector<std::int64_t> apps(150);
    std::iota(apps.begin(), apps.end(), 1);
    const auto store = storeIn("en_US");
    http.answer(200, nothingFound);
    http.answers.emplace_back(HttpFailure{});
    QCoro::waitFor(store->loadIcons(apps));
    EXPECT_THAT(queries(), ElementsAre(EndsWith("%2C100&country=US"), StartsWith("id=101%2C")));
    http.answer(200, nothingFound);
    QCoro::waitFor(store->loadIcons(apps));
    EXPECT_EQ(queries().at(2), queries().at(1));
}

TEST(IconLookup, TakesAddressesFromABodyThatIsWholeAndNothingFromAnyOther) {
    const auto table = std::filesystem::path(VANTRELL_TEST_DATA) / "lookups.tsv";
    testing::expectCases<2>(table, [](const std::string& /*name*/, const std::string& results) {
        std::string found;
        for (const auto& [app, address] :
             IconLookup::parse(R"({"resultCount":9,"results":)" + results + "}")) {
            found += std::to_string(app) + " " + address + ";";
        }
        return found.empty() ? "none" : found;
    });
}

TEST_F(AppIconStoreTest, AsksOnceWhileItWaitsAndMayGoAwayMeanwhile) {
    testing::SlowHttp slow({200, R"({"results":[{"trackId":1,"artworkUrl100":"https://a/1"}]})"});
    TaskScope tasks;
    const Locale home(LocaleNames{"en_US", "C", "C", "C", "C"});
    auto store =
        std::make_unique<AppIconStore>(AppIconStore::Parts{slow, defaults, home}, "https://lookup.test");
    tasks.spawn(store->loadIcons({1}));
    tasks.spawn(store->loadIcons({1}));
    EXPECT_EQ(slow.requests.size(), 1U);
    EXPECT_EQ(tasks.pending(), 1);
    store.reset();
    EXPECT_EQ(tasks.pending(), 0);

    store = std::make_unique<AppIconStore>(AppIconStore::Parts{slow, defaults, home}, "https://lookup.test");
    QObject::connect(store.get(), &AppIconStore::urlsChanged, [&store] { store.reset(); });
    tasks.spawn(store->loadIcons({1, 2}));
    slow.clock.advance(std::chrono::seconds(1));
    EXPECT_EQ(tasks.pending(), 0);
    EXPECT_EQ(defaults.writes, 0);
}

}  // namespace
}  // namespace vantrell
