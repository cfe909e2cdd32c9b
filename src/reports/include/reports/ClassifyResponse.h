#pragma once

#include "reports/ReportResponse.h"

#include <string_view>

namespace vantrell {

/// What an answer other than 200 means. The service tells most cases apart only by the English words of its
/// JSON error; a body of another form is matched by its first 300 bytes. Never gives `Success`.
[[nodiscard]] ReportResponse classifyResponse(int status, std::string_view body);

}  // namespace vantrell
