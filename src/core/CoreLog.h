#pragma once

#include <QLoggingCategory>

namespace vantrell {

/// What the program starts on.
inline const QLoggingCategory& coreLog() {
    static const QLoggingCategory category("vantrell.core", QtFatalMsg);
    return category;
}

}  // namespace vantrell
