#pragma once

#include <QLoggingCategory>

namespace vantrell {

/// What could not be read or written.
inline const QLoggingCategory& filesLog() {
    static const QLoggingCategory category("vantrell.files", QtFatalMsg);
    return category;
}

}  // namespace vantrell
