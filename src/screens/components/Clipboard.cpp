#include "screens/components/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace vantrell {

void Clipboard::copy(const QString& text) {
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

}  // namespace vantrell
