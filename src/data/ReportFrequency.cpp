#include "data/ReportFrequency.h"

#include <array>

namespace vantrell {
namespace {

struct Texts {
    ReportFrequency frequency;
    std::string_view raw;
    std::string_view lower;
};

using enum ReportFrequency;
constexpr std::array<Texts, 4> frequencyTexts{{{daily, "DAILY", "daily"},
                                               {weekly, "WEEKLY", "weekly"},
                                               {monthly, "MONTHLY", "monthly"},
                                               {yearly, "YEARLY", "yearly"}}};

}  // namespace

std::string_view rawText(ReportFrequency frequency) {
    return frequencyTexts.at(static_cast<std::size_t>(frequency)).raw;
}

std::string_view lowerCaseText(ReportFrequency frequency) {
    return frequencyTexts.at(static_cast<std::size_t>(frequency)).lower;
}

std::optional<ReportFrequency> reportFrequency(std::string_view rawText) {
    for (const auto& known : frequencyTexts) {
        if (known.raw == rawText) {
            return known.frequency;
        }
    }
    return std::nullopt;
}

}  // namespace vantrell
