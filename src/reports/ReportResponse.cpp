#include "reports/ReportResponse.h"

#include "platform/Overloaded.h"
#include "reports/ReportLines.h"

#include <cstddef>
#include <string_view>

namespace vantrell {
namespace {

constexpr std::string_view roleHint =
    ". Check that the key was created under Users and Access → Integrations → App Store Connect API with the "
    "Finance role (an In-App Purchase key will not work).";

std::size_t dataLineCount(std::string_view text) {
    std::size_t lines = 0;
    for (const std::string_view line : reportLines(text)) {
        lines += line.empty() ? 0 : 1;
    }
    return lines == 0 ? 0 : lines - 1;
}

}  // namespace

std::string diagnosticText(const ReportResponse& response) {
    using namespace response;  // NOLINT(google-build-using-namespace)
    return std::visit(
        Overloaded{
            [](const Success& success) {
                return "OK — report received (" + std::to_string(dataLineCount(success.text)) +
                       " data lines)";
            },
            [](const NotYetAvailable& pending) { return "Not published yet — " + pending.message; },
            [](const NoSales& none) { return "No sales — " + none.message; },
            [](const Gone& gone) { return "Past retention — " + gone.message; },
            [](const WrongVersion& refused) { return "Version mismatch — " + refused.detail; },
            [](const AuthFailure& refused) {
                return "Authentication failed — " + refused.message + std::string(roleHint);
            },
            [](const RateLimited& limited) { return "Rate limited — " + limited.message; },
            [](const Failure& failure) { return "Failed — " + failure.message; },
        },
        response);
}

}  // namespace vantrell
