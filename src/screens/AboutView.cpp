#include "screens/AboutView.h"

#include "base/ProgramVersion.h"
#include "screens/components/ShownText.h"

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

void AboutView::setOpen(bool isOpen) {
    if (isOpen != isOpen_) {
        isOpen_ = isOpen;
        Q_EMIT isOpenChanged();
    }
}

}  // namespace vantrell
