#include "trial/TrialOptions.h"

#include "base/Decimal.h"
#include "calendar/DayKey.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string_view>
#include <utility>

namespace vantrell {
namespace {

using Problem = std::optional<UsageError>;
using Reader = std::function<Problem(const std::string& value)>;

Problem readService(const std::string& value, TrialOptions& options) {
    if (!value.starts_with("http://") && !value.starts_with("https://")) {
        return UsageError{"--service takes an origin such as http://127.0.0.1:8080"};
    }
    options.service = value;
    while (options.service->ends_with('/')) {
        options.service->pop_back();
    }
    return std::nullopt;
}

Problem readKey(const std::string& value, TrialOptions& options) {
    std::ifstream file(value, std::ios::binary);
    std::ostringstream text;
    // Streaming an empty file sets the failure bit of the target, so only the source is looked at.
    if (file.is_open()) {
        text << file.rdbuf();
    }
    if (!file.is_open() || file.bad()) {
        return UsageError{"the key file can't be read: " + value};
    }
    options.key = text.str();
    return std::nullopt;
}

Problem readCurrency(const std::string& value, TrialOptions& options) {
    const bool isCode = value.size() == 3 && std::ranges::all_of(value, [](char letter) {
                            return letter >= 'A' && letter <= 'Z';
                        });
    if (!isCode) {
        return UsageError{"--currency takes a three-letter code such as EUR"};
    }
    options.currency = value;
    return std::nullopt;
}

Problem readPause(const std::string& value, TrialOptions& options) {
    constexpr int mostSeconds = 3600;
    const auto seconds = Decimal::parse(value);
    if (!seconds || seconds->isNegative() || *seconds > Decimal(mostSeconds)) {
        return UsageError{"--pause takes seconds from 0 to 3600"};
    }
    options.pause =
        std::chrono::round<std::chrono::microseconds>(std::chrono::duration<double>(seconds->toDouble()));
    return std::nullopt;
}

Problem readDo(const std::string& value, TrialOptions& options) {
    const std::size_t equals = value.find('=');
    const std::string_view name = std::string_view(value).substr(0, equals);
    std::string argument = equals == std::string::npos ? std::string() : value.substr(equals + 1);
    const bool hasArgument = equals != std::string::npos;
    if (name == "day" && hasArgument) {
        const auto day = dateFromDayKey(argument);
        if (!day) {
            return UsageError{"--do day= takes a date such as 2026-08-14"};
        }
        options.operation = DoDay{*day};
    } else if (name == "month" && hasArgument) {
        options.operation = DoMonth{std::move(argument)};
    } else if (name == "finance" && hasArgument) {
        options.operation = DoFinance{std::move(argument)};
    } else if (value == "sync") {
        options.operation = DoSync{};
    } else if (value == "backfill") {
        options.operation = DoBackfill{};
    } else if (value == "rates") {
        options.operation = DoRates{};
    } else if (value == "test") {
        options.operation = DoTest{};
    } else {
        return UsageError{"--do doesn't know " + value};
    }
    return std::nullopt;
}

std::map<std::string, Reader> readers(TrialOptions& options) {
    return {{"--service", [&options](const std::string& value) { return readService(value, options); }},
            {"--key", [&options](const std::string& value) { return readKey(value, options); }},
            {"--data",
             [&options](const std::string& value) -> Problem {
                 options.data = value;
                 return std::nullopt;
             }},
            {"--export",
             [&options](const std::string& value) -> Problem {
                 options.exports = value;
                 return std::nullopt;
             }},
            {"--screens",
             [&options](const std::string& value) -> Problem {
                 options.screens = value;
                 return std::nullopt;
             }},
            {"--do", [&options](const std::string& value) { return readDo(value, options); }},
            {"--currency", [&options](const std::string& value) { return readCurrency(value, options); }},
            {"--pause", [&options](const std::string& value) { return readPause(value, options); }}};
}

}  // namespace

std::variant<TrialOptions, UsageError> parseTrialOptions(const std::vector<std::string>& arguments) {
    TrialOptions options;
    const auto byName = readers(options);
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == "--once") {
            options.once = true;
            continue;
        }
        const auto reader = byName.find(*argument);
        if (reader == byName.end()) {
            return UsageError{"unknown option " + *argument};
        }
        if (std::next(argument) == arguments.end()) {
            return UsageError{*argument + " needs a value"};
        }
        options.once =
            options.once || *argument == "--do" || *argument == "--export" || *argument == "--screens";
        if (auto problem = reader->second(*++argument)) {
            return *problem;
        }
    }
    return options;
}

std::string trialUsage() {
    return "vantrell-demo [option ...]   opens the window; its first backfill fills the screens\n"
           "  --once              one automatic run, without a window\n"
           "  --do WHAT           another operation in its place: sync, backfill, day=YYYY-MM-DD,\n"
           "                      month=TEXT, finance=PERIOD, rates, test\n"
           "  --export DIR        after the run write the five CSV exports into DIR; implies --once\n"
           "  --screens DIR       after the run write pictures and texts of all screens into DIR; implies "
           "--once\n"
           "  --service ORIGIN    a service in place of the built-in sample service\n"
           "  --key FILE          the key to sign with; without it a fresh one\n"
           "  --data DIR          a folder that is kept between runs; without it a temporary one\n"
           "  --currency CODE     the display currency, remembered\n"
           "  --pause SECONDS     the pause after a request (default 0.15)\n";
}

}  // namespace vantrell
