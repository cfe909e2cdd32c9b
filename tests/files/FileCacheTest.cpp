#include "files/FileCache.h"
#include "testing/TemporaryFolder.h"

#include <chrono>
#include <fstream>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

class FileCacheTest : public ::testing::Test {
  protected:
    /// Makes the file that was written last so many hours old.
    void age(int hours) const {
        for (const auto& entry : fs::directory_iterator(path)) {
            if (entry.last_write_time() > start) {
                fs::last_write_time(entry, start - std::chrono::hours(hours));
            }
        }
    }

    testing::TemporaryFolder folder;
    const fs::path path = folder / "cache";
    const fs::file_time_type start = fs::file_time_type::clock::now() - std::chrono::minutes(1);
};

TEST_F(FileCacheTest, RemovesWhatWasNotUsedForLongestAndNothingThatIsNotItsOwn) {
    const std::string quarter(250, 'x');
    fs::create_directory(path);
    std::ofstream(path / "notes.txt") << std::string(5000, 'y');
    age(100);
    {
        int hours = 9;
        FileCache earlier(path, 1000);
        for (const auto* key : {"used", "oldest", "older", "https://a/b?c"}) {
            earlier.write(key, quarter);
            age(hours--);
        }
    }
    FileCache cache(path, 1000);
    EXPECT_EQ(cache.read("used"), quarter) << "full, but not over";
    cache.write("newest", quarter);
    EXPECT_EQ(cache.read("oldest"), std::nullopt);
    EXPECT_EQ(cache.read("older"), std::nullopt);
    EXPECT_EQ(cache.read("used"), quarter);
    EXPECT_EQ(cache.read("https://a/b?c"), quarter);
    EXPECT_EQ(cache.read("newest"), quarter);
    EXPECT_TRUE(fs::exists(path / "notes.txt"));
    FileCache nowhere(path / "notes.txt", 1000);
    nowhere.write("a", "1");
    EXPECT_EQ(nowhere.read("a"), std::nullopt);
}

}  // namespace
}  // namespace vantrell
