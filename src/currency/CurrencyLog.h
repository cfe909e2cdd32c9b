#pragma once

#include <QLoggingCategory>

namespace vantrell {

/// Where rates came from, and why not.
inline const QLoggingCategory& currencyLog() {
    static const QLoggingCategory category("vantrell.currency", QtFatalMsg);
    return category;
}

}  // namespace vantrell
