#include "Targets.h"
#include "base/Characters.h"
#include "base/Overloaded.h"
#include "base/Utf8.h"
#include "currency/RatesFetcher.h"
#include "data/Reports.h"
#include "icons/IconLookup.h"
#include "reports/APIToken.h"
#include "reports/ClassifyResponse.h"

#include <array>
#include <cmath>

namespace vantrell::fuzz {

void classification(const std::string& input) {
    for (const int status : {400, 401, 404, 410, 429, 503}) {
        const ReportResponse answer = classifyResponse(status, input);
        require(!std::holds_alternative<response::Success>(answer));
        const std::string line = std::visit(
            Overloaded{[](const response::Success& success) { return success.body; },
                       [](const response::WrongVersion& wrong) { return wrong.latest + wrong.detail; },
                       [](const auto& other) { return other.message; }},
            answer);
        require(isUtf8(line) && line.size() < 2 * mostMessageBytes);
        require(firstCharacters(line, 500).size() <= line.size());
    }
}

void rates(const std::string& input) {
    const RatesAnswer answer = RatesFetcher::parse(input);
    if (const auto* rates = std::get_if<Rates>(&answer)) {
        require(!rates->empty());
        for (const auto& [currency, rate] : *rates) {
            require(isUtf8(currency) && std::isfinite(rate));
        }
    }
}

void lookup(const std::string& input) {
    for (const auto& [appleID, address] : IconLookup::parse(input)) {
        require(isUtf8(address) && isIconAddress(address));
    }
}

void key(const std::string& input) {
    try {
        require(loadSigningKey(input).publicPEM().starts_with("-----BEGIN PUBLIC KEY-----"));
    } catch (const JWTError& error) {
        require(std::string_view(error.what()).starts_with("The .p8 private key could not be read: "));
    }
}

}  // namespace vantrell::fuzz
