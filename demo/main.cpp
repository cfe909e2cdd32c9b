#include "core/ProcessGuards.h"
#include "trial/TrialOptions.h"
#include "trial/TrialProgram.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQuickWindow>

namespace {

using namespace vantrell;

// Pictures are drawn by the processor alone, so that they look alike on every machine.
TrialEnd runWithPictures(TrialOptions options) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    int count = 0;
    const QGuiApplication application(count, nullptr);
    return runTrial(std::move(options), std::cout, std::cerr);
}

TrialEnd run(TrialOptions options, int& argc, char** argv) {
    if (options.screens) {
        return runWithPictures(std::move(options));
    }
    if (options.once) {
        const QCoreApplication application(argc, argv);
        return runTrial(std::move(options), std::cout, std::cerr);
    }
    const QGuiApplication application(argc, argv);
    return openTrialWindow(std::move(options), std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
    setProcessGuards();
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (std::ranges::find(arguments, "--help") != arguments.end()) {
        std::cout << trialUsage();
        return static_cast<int>(TrialEnd::done);
    }
    auto options = parseTrialOptions(arguments);
    if (const auto* error = std::get_if<UsageError>(&options)) {
        std::cerr << trialUsage() << error->text << std::endl;
        return static_cast<int>(TrialEnd::usage);
    }
    return static_cast<int>(run(std::get<TrialOptions>(std::move(options)), argc, argv));
}
