#include "BenchRun.h"
#include "FirstFigures.h"
#include "WindowFigures.h"

#include <charconv>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQuickWindow>

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
    if (arguments.size() == 3 && arguments[0] == "--window") {
        if (const auto rows = positiveNumber(arguments[2])) {
            showWindowFigures(arguments[1], *rows);
            return 0;
        }
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

// Windows are painted off-screen by the processor, so that figures compare between machines.
std::unique_ptr<QCoreApplication> makeApplication(const std::vector<std::string>& arguments, int& argc,
                                                  char** argv) {
    if (arguments.empty() || arguments[0] != "--window") {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto application = makeApplication(arguments, argc, argv);
    try {
        return run(arguments);
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
