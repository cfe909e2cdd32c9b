#include "platform/JsonDefaults.h"

#include <fstream>
#include <iterator>

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

class JsonDefaultsTest : public ::testing::Test {
  protected:
    [[nodiscard]] std::string contents() const {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    void write(std::string_view text) const {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(file.parent_path())) {
            found.push_back(entry.path().filename());
        }
        std::ranges::sort(found);
        return found;
    }

    QTemporaryDir folder;
    const fs::path file = fs::path(folder.path().toStdString()) / "new" / "deeper" / "defaults.json";
};

TEST_F(JsonDefaultsTest, KeepsValuesForTheNextStart) {
    const Instant date{std::chrono::microseconds{1'795'348'800'123'457}};
    const std::string text = "\"Zürich\"\n日本 \xF0\x9F\x98\x80";
    {
        JsonDefaults defaults(file);
        defaults.setText("text", text);
        defaults.setDate("date", date);
        defaults.setDate("never", distantPast);
        defaults.setDate("end", Instant::max());
        defaults.setFlag("flag", false);
        defaults.setFlag("gone", true);
        defaults.remove("gone");
    }
    const JsonDefaults defaults(file);
    EXPECT_EQ(defaults.text("text"), text);
    EXPECT_EQ(defaults.date("date"), date);
    EXPECT_EQ(defaults.date("never"), distantPast);
    EXPECT_EQ(defaults.date("end"), Instant::max());
    EXPECT_EQ(defaults.flag("flag"), false);
    EXPECT_EQ(defaults.flag("gone"), std::nullopt);
    EXPECT_EQ(defaults.text("never written"), std::nullopt);
}

TEST_F(JsonDefaultsTest, AValueOfAnotherTypeIsAbsent) {
    const struct {
        const char* name;
        const char* value;
        bool text;
        bool date;
        bool flag;
    } cases[] = {
        {"text", R"("x")", true, false, false},
        {"text that looks like a date", R"("2026-11-22T12:00:00Z")", true, false, false},
        {"flag", "true", false, false, true},
        {"date", R"({"date": 1})", false, true, false},
        {"date of text", R"({"date": "1"})", false, false, false},
        {"date of a fraction", R"({"date": 1.5})", false, false, false},
        {"date beyond all numbers", R"({"date": 1e30})", false, false, false},
        {"date with more", R"({"date": 1, "zone": "UTC"})", false, false, false},
        {"number", "1", false, false, false},
        {"null", "null", false, false, false},
        {"list", R"(["x"])", false, false, false},
    };
    for (const auto& [name, value, text, date, flag] : cases) {
        write(std::string(R"({"key": )") + value + "}");
        const JsonDefaults defaults(file);
        EXPECT_EQ(defaults.text("key").has_value(), text) << name;
        EXPECT_EQ(defaults.date("key").has_value(), date) << name;
        EXPECT_EQ(defaults.flag("key").has_value(), flag) << name;
    }
}

TEST_F(JsonDefaultsTest, LeavesWhatItDoesNotKnowInTheFile) {
    write(R"({"future": [1, {"nested": null}], "number": 9007199254740993, "displayCurrency": "EUR"})");
    JsonDefaults(file).setText("displayCurrency", "CHF");
    std::string compact;
    std::ranges::copy_if(contents(), std::back_inserter(compact),
                         [](char c) { return c != ' ' && c != '\n'; });
    EXPECT_EQ(compact, R"({"displayCurrency":"CHF","future":[1,{"nested":null}],"number":9007199254740993})");
}

TEST_F(JsonDefaultsTest, IsForTheUserAlone) {
    JsonDefaults(file).setFlag("flag", true);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms{0600});
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms{0700});
    fs::permissions(file, fs::perms{0644});
    JsonDefaults(file).setFlag("flag", false);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms{0600});
    EXPECT_THAT(names(), ElementsAre("defaults.json"));
}

TEST_F(JsonDefaultsTest, DoesNotTouchTheFileWithoutAChange) {
    JsonDefaults defaults(file);
    defaults.remove("nothing");
    EXPECT_FALSE(fs::exists(file));
    defaults.setText("text", "x");
    fs::remove(file);
    defaults.setText("text", "x");
    defaults.remove("nothing");
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(JsonDefaultsTest, SetsADamagedFileAsideBeforeItWrites) {
    for (const auto* damaged : {"", "{\"text\": \"x\"", "[1]", "\xFF\xFE"}) {
        write(damaged);
        {
            JsonDefaults defaults(file);
            EXPECT_EQ(defaults.text("text"), std::nullopt);
            EXPECT_EQ(contents(), damaged) << "only a save moves it";
            defaults.setText("text", "new");
            defaults.setText("text", "newer");
        }
        EXPECT_EQ(JsonDefaults(file).text("text"), "newer");
    }
    EXPECT_THAT(names(), ElementsAre("defaults.json", "defaults.json.damaged", "defaults.json.damaged-2",
                                     "defaults.json.damaged-3", "defaults.json.damaged-4"));
    std::ifstream second(file.string() + ".damaged-2");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(second), {}), "{\"text\": \"x\"");
}

TEST_F(JsonDefaultsTest, KeepsValuesInMemoryWhenASaveFailsAndTriesAgain) {
    JsonDefaults defaults(file);
    // A file in place of the folder stops every user, the administrator as well.
    const auto obstacle = file.parent_path();
    fs::create_directories(obstacle.parent_path());
    std::ofstream(obstacle) << "in the way";
    defaults.setText("first", "1");
    EXPECT_EQ(defaults.text("first"), "1");
    fs::remove(obstacle);
    defaults.setText("first", "1");
    EXPECT_EQ(JsonDefaults(file).text("first"), "1");
}

}  // namespace
}  // namespace vantrell
