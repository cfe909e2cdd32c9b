#include "files/AtomicFile.h"
#include "files/FileCache.h"
#include "files/JsonDefaults.h"
#include "files/TextFile.h"
#include "testing/Golden.h"
#include "testing/TemporaryFolder.h"

#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

/// No file gets longer than this while it lives, as on a disk that is full but for so many bytes.
class FullDisk {
  public:
    explicit FullDisk(rlim_t left) {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{left, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
};

fs::perms modeOf(const fs::path& file) {
    return fs::status(file).permissions();
}

TEST(AtomicFile, ReplacesTheWholeFileAndMakesItsFolder) {
    const testing::TemporaryFolder folder;
    const auto file = folder / "a/b/figures.csv";
    EXPECT_EQ(writeAtomically(file, "a longer text\n"), std::nullopt);
    EXPECT_EQ(writeAtomically(file, std::string_view("\0x\r\n", 4)), std::nullopt);
    EXPECT_EQ(testing::fileText(file), std::string("\0x\r\n", 4));
    EXPECT_EQ(testing::filesIn(folder / "a/b", ".csv").size(), 1U);
    fs::create_symlink("figures.csv", folder / "a/b/link");
    EXPECT_EQ(writeAtomically(folder / "a/b/link", "through"), std::nullopt);
    EXPECT_EQ(testing::fileText(file), "through");
}

TEST(AtomicFile, SaysWhatStoodInTheWayAndLeavesIt) {
    const testing::TemporaryFolder folder;
    const auto file = folder / "figures.csv";
    ASSERT_EQ(writeAtomically(file, "old"), std::nullopt);
    EXPECT_NE(writeAtomically(file / "below.csv", "new").value_or("").find("figures.csv"), std::string::npos);
    std::filesystem::create_directories(folder / "taken.csv" / "inside");
    EXPECT_NE(writeAtomically(folder / "taken.csv", "new").value_or("").find("taken.csv"), std::string::npos);
    EXPECT_EQ(testing::fileText(file), "old");
    EXPECT_TRUE(std::filesystem::is_directory(folder / "taken.csv" / "inside"));
}

TEST(AtomicFile, AFullDiskLeavesWhatWasThereAndIsTold) {
    const testing::TemporaryFolder folder;
    const std::string full = std::make_error_code(std::errc::file_too_large).message();
    const auto told = [&](const char* name) { return (folder / name).string() + ": " + full; };
    ASSERT_EQ(writeAtomically(folder / "figures.csv", "old"), std::nullopt);
    {
        JsonDefaults defaults(folder / "defaults.json");
        defaults.setText("currency", "EUR");
        const FullDisk disk(20);
        EXPECT_EQ(writeAtomically(folder / "figures.csv", std::string(21, 'x')), told("figures.csv"));
        defaults.setText("currency", "CHF");
        EXPECT_EQ(defaults.saveAll(), told("defaults.json"));
        EXPECT_EQ(defaults.text("currency"), "CHF");
        EXPECT_EQ(JsonDefaults(folder / "defaults.json").text("currency"), "EUR");
    }
    EXPECT_EQ(JsonDefaults(folder / "defaults.json").text("currency"), "CHF") << "tried again at the end";
    EXPECT_EQ(testing::fileText(folder / "figures.csv"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2) << "and no drafts";
}

TEST(AtomicFile, IsReadByWhomItWasReadAndOtherwiseByTheMaskOrTheOwner) {
    const testing::TemporaryFolder folder;
    const auto mask = ::umask(027);
    EXPECT_EQ(writeAtomically(folder / "new", "x"), std::nullopt);
    EXPECT_EQ(writeAtomically(folder / "own/er", "x", Readers::ownerOnly), std::nullopt);
    ::umask(mask);
    fs::permissions(folder / "new", fs::perms(0604));
    EXPECT_EQ(writeAtomically(folder / "new", "y"), std::nullopt);
    EXPECT_EQ(modeOf(folder / "new"), fs::perms(0604));
    fs::permissions(folder / "own/er", fs::perms(0644));
    EXPECT_EQ(writeAtomically(folder / "own/er", "y", Readers::ownerOnly), std::nullopt);
    EXPECT_EQ(modeOf(folder / "own/er"), fs::perms(0600));
    EXPECT_EQ(modeOf(folder / "own"), fs::perms(0700));
}

TEST(AtomicFile, WhatIsNoFileNeitherBlocksNorIsReplaced) {
    const testing::TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", folder / "device");
    for (const char* name : {"pipe", "device"}) {
        const fs::path file = folder / name;
        EXPECT_EQ(readTextFile(file, 10),
                  (std::variant<std::string, FileReadError>(FileReadError{"It is not a file."})));
        EXPECT_NE(writeAtomically(file, "x"), std::nullopt);
        JsonDefaults defaults(file);
        defaults.setText("a", "1");
        EXPECT_EQ(JsonDefaults(file).text("a"), "1") << "set aside like a damaged file";
    }
    EXPECT_TRUE(fs::is_fifo(folder / "pipe.damaged"));
}

TEST(AtomicFile, NamesNeedNotBeUtf8) {
    const testing::TemporaryFolder folder;
    const fs::path odd = folder.path() / "caf\xE9";
    EXPECT_EQ(writeAtomically(odd / "\xFF.csv", "x"), std::nullopt);
    JsonDefaults(odd / "defaults.json").setText("a", "1");
    EXPECT_EQ(JsonDefaults(odd / "defaults.json").text("a"), "1");
    FileCache(odd / "icons", 100).write("key", "picture");
    EXPECT_EQ(FileCache(odd / "icons", 100).read("key"), "picture");
    EXPECT_EQ(testing::fileText(odd / "\xFF.csv"), "x");
    fs::remove_all(odd);
}

}  // namespace
}  // namespace vantrell
