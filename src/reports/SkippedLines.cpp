#include "reports/SkippedLines.h"

#include "base/Characters.h"
#include "base/Utf8.h"

#include <cstddef>

namespace vantrell {
namespace {

constexpr std::size_t mostCharactersThatGrow = 1'999;

}  // namespace

void appendSkippedLine(std::string_view line, SkippedLines& skippedLines) {
    if (skippedLines.full) {
        return;
    }
    std::string& text = skippedLines.text;
    if (!text.empty()) {
        text += '\n';
    }
    for (const char letter : line) {
        if (letter == '\t') {
            text += "  ";
        } else {
            text += letter;
        }
    }
    // A character can be of any length.
    if (text.size() > mostSampleBytes) {
        text.resize(cutAtCodePoint(text, mostSampleBytes).size());
        skippedLines.full = true;
        return;
    }
    skippedLines.full = firstCharacters(text, mostCharactersThatGrow).size() < text.size();
}

}  // namespace vantrell
