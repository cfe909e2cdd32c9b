#include "reports/ReportResponse.h"

#include "base/Overloaded.h"
#include "reports/ReportError.h"
#include "reports/ReportLines.h"
#include "reports/ReportText.h"

#include <cstddef>
#include <string_view>

namespace vantrell {
namespace {

constexpr std::string_view roleHint =
    ". Check that the key was created under Users and Access → Integrations → App Store Connect API with the "
    "Finance role (an In-App Purchase key will not work).";

std::size_t dataLineCount(const std::string& body) {
    ReportText text(body);
    std::size_t lines = 0;
    while (const auto more = text.nextLines()) {
        for (const std::string_view line : reportLines(*more)) {
            lines += line.empty() ? 0 : 1;
        }
    }
    return lines == 0 ? 0 : lines - 1;
}

std::string failureText(std::string_view message) {
    return "Failed — " + std::string(message);
}

std::string receivedText(const std::string& body) {
    try {
        return "OK — report received (" + std::to_string(dataLineCount(body)) + " data lines)";
    } catch (const ReportError& error) {
        return failureText(error.what());
    }
}

}  // namespace

std::string diagnosticText(const ReportResponse& response) {
    using namespace response;  // NOLINT(google-build-using-namespace)
    return std::visit(
        Overloaded{
            [](const Success& success) { return receivedText(success.body); },
            [](const NotYetAvailable& pending) { return "Not published yet — " + pending.message; },
            [](const NoSales& none) { return "No sales — " + none.message; },
            [](const Gone& gone) { return "Past retention — " + gone.message; },
            [](const WrongVersion& refused) { return "Version mismatch — " + refused.detail; },
            [](const AuthFailure& refused) {
                return "Authentication failed — " + refused.message + std::string(roleHint);
            },
            [](const RateLimited& limited) { return "Rate limited — " + limited.message; },
            [](const Failure& failure) { return failureText(failure.message); },
        },
        response);
}

}  // namespace vantrell
