#include "files/JsonDefaults.h"
#include "testing/Cases.h"
#include "testing/Golden.h"
#include "testing/TemporaryFolder.h"

#include <fstream>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

class JsonDefaultsTest : public ::testing::Test {
  protected:
    void write(std::string_view text) const {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    testing::TemporaryFolder folder;
    const fs::path file = folder / "new/deeper/defaults.json";
};

TEST_F(JsonDefaultsTest, KeepsValuesForTheNextStart) {
    const Instant date{std::chrono::microseconds{1'795'348'800'123'457}};
    const auto* text = "\"Zürich\"\n日本 \xF0\x9F\x98\x80";
    {
        JsonDefaults defaults(file);
        defaults.setText("text", text);
        defaults.setDate("date", date);
        defaults.setDate("never", distantPast);
        defaults.setFlag("flag", false);
        defaults.setTextMap("texts", {{"", "x"}, {"7", text}});
        defaults.setFlag("gone", true);
        defaults.remove("gone");
    }
    const JsonDefaults defaults(file);
    EXPECT_EQ(defaults.text("text"), text);
    EXPECT_EQ(defaults.date("date"), date);
    EXPECT_EQ(defaults.date("never"), distantPast);
    EXPECT_EQ(defaults.flag("flag"), false);
    EXPECT_EQ(defaults.textMap("texts"), (TextMap{{"", "x"}, {"7", text}}));
    EXPECT_EQ(defaults.flag("gone"), std::nullopt);
}

TEST_F(JsonDefaultsTest, AValueOfAnotherTypeIsAbsent) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/setting-types.tsv", [this](const std::string& value) {
        write(R"({"key": )" + value + "}");
        const JsonDefaults defaults(file);
        return std::string(defaults.text("key") ? "text" : "") + (defaults.date("key") ? "date" : "") +
               (defaults.flag("key") ? "flag" : "") + (defaults.textMap("key") ? "texts" : "");
    });
}

TEST_F(JsonDefaultsTest, LeavesWhatItDoesNotKnowInTheFile) {
    write(R"({"future": [1, {"nested": null}], "number": 9007199254740993, "displayCurrency": "EUR"})");
    JsonDefaults(file).setText("displayCurrency", "CHF");
    auto text = testing::fileText(file);
    std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
    EXPECT_EQ(text, R"({"displayCurrency":"CHF","future":[1,{"nested":null}],"number":9007199254740993})");
}

TEST_F(JsonDefaultsTest, IsForTheUserAlone) {
    JsonDefaults(file).setFlag("flag", true);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms{0600});
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms{0700});
}

TEST_F(JsonDefaultsTest, SetsADamagedFileAsideBeforeItWrites) {
    for (const auto* damaged : {"", "{\"text\": \"x\"", "[1]", "\xFF\xFE"}) {
        write(damaged);
        {
            JsonDefaults defaults(file);
            EXPECT_EQ(defaults.text("text"), std::nullopt);
            EXPECT_EQ(testing::fileText(file), damaged) << "only a save moves it";
            defaults.setText("text", "new");
            defaults.setText("text", "newer");
        }
        EXPECT_EQ(JsonDefaults(file).text("text"), "newer");
    }
    EXPECT_EQ(testing::fileText(file.string() + ".damaged-2"), "{\"text\": \"x\"");
    EXPECT_EQ(testing::fileText(file.string() + ".damaged-4"), "\xFF\xFE");
}

}  // namespace
}  // namespace vantrell
