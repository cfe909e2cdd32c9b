#pragma once

#include <QLoggingCategory>

namespace vantrell {

/// Each exchange by host, path and outcome, never by query or header.
inline const QLoggingCategory& netLog() {
    static const QLoggingCategory category("vantrell.net", QtFatalMsg);
    return category;
}

}  // namespace vantrell
