#include "reports/ReportError.h"

namespace vantrell {
namespace {

const char* description(ReportError::Reason reason) {
    switch (reason) {
        case ReportError::Reason::corruptContainer:
            return "The report is damaged: it is not a complete gzip file.";
        case ReportError::Reason::corruptStream:
            return "The report is damaged: it could not be unpacked.";
        case ReportError::Reason::tooLarge:
            return "The report is too large to unpack.";
        case ReportError::Reason::tooManyLines:
            return "The report has too many lines.";
        case ReportError::Reason::lineTooLong:
            return "The report has a line that is too long.";
        case ReportError::Reason::tooMuchToKeep:
            return "The report holds more than can be kept.";
    }
    return "";
}

}  // namespace

ReportError::ReportError(Reason reason) : std::runtime_error(description(reason)), reason_(reason) {}

}  // namespace vantrell
