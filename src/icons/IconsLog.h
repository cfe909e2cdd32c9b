#pragma once

#include <QLoggingCategory>

namespace vantrell {

/// What the lookup finds.
inline const QLoggingCategory& iconsLog() {
    static const QLoggingCategory category("vantrell.icons", QtFatalMsg);
    return category;
}

}  // namespace vantrell
