#include "screens/about/AboutView.h"

#include "base/ProgramVersion.h"
#include "screens/about/Diagnostics.h"
#include "screens/components/ShownText.h"

#include <QClipboard>
#include <QGuiApplication>

namespace vantrell {

QString AboutView::version() {
    return tr("Version %1 (%2)").arg(fromUtf8(programVersion()), fromUtf8(programBuild()));
}

void AboutView::open() {
    setOpen(true);
    Q_EMIT raiseRequested();
}

void AboutView::close() {
    setOpen(false);
}

void AboutView::copyDiagnostics() const {
    QGuiApplication::clipboard()->setText(QString::fromStdString(diagnosticsText(parts_)));
}

void AboutView::setOpen(bool isOpen) {
    if (isOpen != isOpen_) {
        isOpen_ = isOpen;
        Q_EMIT isOpenChanged();
    }
}

}  // namespace vantrell
