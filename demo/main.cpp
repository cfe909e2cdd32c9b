#include "TrialOptions.h"
#include "TrialProgram.h"

#include <iostream>
#include <string>
#include <vector>

#include <QCoreApplication>

int main(int argc, char** argv) {
    using namespace vantrell;
    const QCoreApplication application(argc, argv);
    const auto options = parseTrialOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (const auto* error = std::get_if<UsageError>(&options)) {
        std::cerr << trialUsage() << error->text << std::endl;
        return static_cast<int>(TrialEnd::usage);
    }
    return static_cast<int>(runTrial(std::get<TrialOptions>(options), std::cout, std::cerr));
}
