#include "screens/Appearance.h"

#include <utility>

namespace vantrell {

void Appearance::changeDark(bool isDark) {
    if (std::exchange(isDark_, isDark) != isDark) {
        Q_EMIT isDarkChanged();
    }
}

void Appearance::changeReducesMotion(bool reducesMotion) {
    if (std::exchange(reducesMotion_, reducesMotion) != reducesMotion) {
        Q_EMIT reducesMotionChanged();
    }
}

}  // namespace vantrell
