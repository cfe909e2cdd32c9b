#include "trial/TrialOptions.h"
#include "trial/TrialProgram.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include <QCoreApplication>

int main(int argc, char** argv) {
    using namespace vantrell;
    const QCoreApplication application(argc, argv);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (std::ranges::find(arguments, "--help") != arguments.end()) {
        std::cout << trialUsage();
        return static_cast<int>(TrialEnd::done);
    }
    const auto options = parseTrialOptions(arguments);
    if (const auto* error = std::get_if<UsageError>(&options)) {
        std::cerr << trialUsage() << error->text << std::endl;
        return static_cast<int>(TrialEnd::usage);
    }
    return static_cast<int>(runTrial(std::get<TrialOptions>(options), std::cout, std::cerr));
}
