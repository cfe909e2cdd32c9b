#include "testing/Golden.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

namespace vantrell::testing {
namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const std::string& text) {
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// For every pair of line numbers: how many lines are common to what follows them, in order.
std::vector<std::vector<int>> commonTails(const Lines& expected, const Lines& actual) {
    std::vector<std::vector<int>> tails(expected.size() + 1, std::vector<int>(actual.size() + 1, 0));
    for (std::size_t left = expected.size(); left-- > 0;) {
        for (std::size_t right = actual.size(); right-- > 0;) {
            tails[left][right] = expected[left] == actual[right]
                                     ? tails[left + 1][right + 1] + 1
                                     : std::max(tails[left + 1][right], tails[left][right + 1]);
        }
    }
    return tails;
}

std::string difference(const Lines& expected, const Lines& actual) {
    const auto tails = commonTails(expected, actual);
    std::string text;
    std::size_t left = 0;
    std::size_t right = 0;
    while (left < expected.size() || right < actual.size()) {
        if (left < expected.size() && right < actual.size() && expected[left] == actual[right]) {
            text += "  " + expected[left++] + '\n';
            ++right;
        } else if (right == actual.size() ||
                   (left < expected.size() && tails[left + 1][right] >= tails[left][right + 1])) {
            text += "- " + expected[left++] + '\n';
        } else {
            text += "+ " + actual[right++] + '\n';
        }
    }
    return text;
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
                      << difference(linesOf(wanted), linesOf(actual));
    }
}

}  // namespace vantrell::testing
