#include "data/ReportStatus.h"

#include <array>
#include <utility>

namespace vantrell {
namespace {

using enum ReportStatus;
constexpr std::array<std::pair<ReportStatus, std::string_view>, 6> statusTexts{{{ok, "ok"},
                                                                                {empty, "empty"},
                                                                                {pending, "pending"},
                                                                                {unavailable, "unavailable"},
                                                                                {error, "error"},
                                                                                {missing, "missing"}}};

}  // namespace

std::string_view rawText(ReportStatus status) {
    return statusTexts.at(static_cast<std::size_t>(status)).second;
}

ReportStatus reportStatus(std::string_view rawText) {
    for (const auto& [status, text] : statusTexts) {
        if (text == rawText) {
            return status;
        }
    }
    return missing;
}

}  // namespace vantrell
