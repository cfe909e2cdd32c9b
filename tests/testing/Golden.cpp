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

/// The lines between the first and the last that differ.
std::string difference(const Lines& expected, const Lines& actual) {
    const auto [left, right] = std::ranges::mismatch(expected, actual);
    auto leftEnd = expected.end();
    auto rightEnd = actual.end();
    while (leftEnd != left && rightEnd != right && *std::prev(leftEnd) == *std::prev(rightEnd)) {
        --leftEnd;
        --rightEnd;
    }
    std::string text = "from line " + std::to_string(left - expected.begin() + 1) + '\n';
    std::for_each(left, leftEnd, [&text](const auto& line) { text += "- " + line + '\n'; });
    std::for_each(right, rightEnd, [&text](const auto& line) { text += "+ " + line + '\n'; });
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
