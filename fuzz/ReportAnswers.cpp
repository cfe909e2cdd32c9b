#include "Require.h"
#include "platform/Characters.h"
#include "platform/Utf8.h"
#include "reports/APIToken.h"
#include "reports/ClassifyResponse.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantrell {
namespace {

void requireAnswer(int status, const std::string& body) {
    const ReportResponse answer = classifyResponse(status, body);
    require(!std::holds_alternative<response::Success>(answer));
    const std::string line = diagnosticText(answer);
    require(repairedUtf8(line) == line);
    require(firstCharacters(line, 500).size() <= line.size());
}

void readAsKey(const std::string& text) {
    try {
        static_cast<void>(loadSigningKey(text));
    } catch (const JWTError& error) {
        require(std::string_view(error.what()).starts_with("The .p8 private key could not be read: "));
    }
}

}  // namespace
}  // namespace vantrell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::array statuses{400, 401, 404, 410, 429, 503};
    const std::string body(data, data + size);
    vantrell::requireAnswer(statuses.at(size % statuses.size()), body);
    vantrell::readAsKey(body);
    return 0;
}
