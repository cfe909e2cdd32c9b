#pragma once

#include <QLoggingCategory>

namespace vantrell {

/// How the keyring answers, never with what.
inline const QLoggingCategory& secretsLog() {
    static const QLoggingCategory category("vantrell.secrets", QtFatalMsg);
    return category;
}

}  // namespace vantrell
