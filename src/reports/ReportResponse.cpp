#include "reports/ReportResponse.h"

#include "reports/ReportLines.h"
#include "reports/ReportText.h"

namespace vantrell {

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

}  // namespace vantrell
