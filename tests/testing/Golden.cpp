#include "testing/Golden.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

namespace vantrell::testing {
namespace {

/// The first line that differs, in both.
std::string difference(const std::string& expected, const std::string& actual) {
    std::istringstream left(expected);
    std::istringstream right(actual);
    std::string expectedLine;
    std::string actualLine;
    int number = 0;
    do {
        ++number;
        expectedLine = std::getline(left, expectedLine) ? expectedLine : "(the end)";
        actualLine = std::getline(right, actualLine) ? actualLine : "(the end)";
    } while (expectedLine == actualLine && left && right);
    return "from line " + std::to_string(number) + "\n- " + expectedLine + "\n+ " + actualLine;
}

std::filesystem::path keep(const std::string& actual, const std::filesystem::path& expected) {
    const auto folder = std::filesystem::path(VANTRELL_GOLDEN_OUTPUT) / expected.parent_path().filename();
    std::filesystem::create_directories(folder);
    auto file = folder / expected.filename();
    std::ofstream(file, std::ios::binary) << actual;
    return file;
}

}  // namespace

std::string fileText(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file << " can't be read";
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder,
                                           const std::string& extension) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == extension) {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);
    return files;
}

void expectMatchesFile(const std::string& actual, const std::filesystem::path& expected) {
    const std::string wanted = std::filesystem::exists(expected) ? fileText(expected) : std::string();
    if (actual != wanted || !std::filesystem::exists(expected)) {
        ADD_FAILURE() << "not as in " << expected << ", see " << keep(actual, expected) << '\n'
                      << difference(wanted, actual);
    }
}

}  // namespace vantrell::testing
