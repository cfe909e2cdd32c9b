#include "screens/components/ShownText.h"

#include <algorithm>

#include <QList>
#include <QStringView>

namespace vantrell {
namespace {

// More than any writing system stacks on a letter.
constexpr int marksPerLetter = 8;
// No text needs more bytes for a letter of its own; what lies beyond is not even decoded.
constexpr std::size_t bytesPerCharacter = 16;

bool isBlank(char32_t letter) {
    return letter == U'\n' || letter == U'\r' || letter == U'\t' || letter == 0x2028 || letter == 0x2029;
}

// Control characters, and those that turn the direction of what follows.
bool isHidden(char32_t letter) {
    const bool turns = (letter >= 0x202A && letter <= 0x202E) || (letter >= 0x2066 && letter <= 0x2069);
    return QChar::category(letter) == QChar::Other_Control || turns || letter == 0xFEFF;
}

}  // namespace

QString fromUtf8(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString shownText(std::string_view utf8, int characters) {
    const std::size_t enough = static_cast<std::size_t>(characters) * bytesPerCharacter;
    const bool isCut = utf8.size() > enough;
    QString shown;
    int letters = 0;
    int marks = 0;
    for (const char32_t letter : fromUtf8(utf8.substr(0, std::min(utf8.size(), enough))).toUcs4()) {
        if (QChar::isMark(letter)) {
            if (++marks > marksPerLetter) {
                continue;
            }
        } else if (isHidden(letter) && !isBlank(letter)) {
            continue;
        } else {
            marks = 0;
            if (++letters > characters) {
                return shown + QChar(0x2026);
            }
        }
        shown += isBlank(letter) ? QStringView(u" ") : QStringView(QChar::fromUcs4(letter));
    }
    return isCut ? shown + QChar(0x2026) : shown;
}

}  // namespace vantrell
