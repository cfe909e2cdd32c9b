#include "BenchRun.h"
#include "FirstFigures.h"

#include <charconv>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QCoreApplication>

namespace {

constexpr std::int64_t usualRows = 1'000'000;
constexpr int usageError = 2;

std::optional<std::int64_t> positiveNumber(std::string_view text) {
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stopped == end && number > 0 ? std::optional(number) : std::nullopt;
}

int run(const std::vector<std::string>& arguments) {
    using namespace vantrell::bench;
    if (arguments.empty()) {
        runBench(usualRows);
        return 0;
    }
    if (arguments.size() == 1 && arguments[0] == "--growth") {
        runGrowth();
        return 0;
    }
    if (arguments.size() == 2 && arguments[0] == "--first-figures") {
        showFirstFigures(arguments[1]);
        return 0;
    }
    if (arguments.size() == 2 && arguments[0] == "--rows") {
        if (const auto rows = positiveNumber(arguments[1])) {
            runBench(*rows);
            return 0;
        }
    }
    std::cerr << "usage: vantrell-bench [--rows N | --growth]\n";
    return usageError;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
