#include "screens/Screen.h"

namespace vantrell {

// A reload and a new display currency raise the load revision once, after all their other changes.
Screen::Screen(const ScreenParts& parts, QObject* parent) : QObject(parent), parts_(parts) {
    connect(&parts_.store, &EarningsStore::loadRevisionChanged, this, &Screen::invalidate);
    connect(&parts_.store, &EarningsStore::appFilterChanged, this, &Screen::invalidate);
}

void Screen::setInSight(bool inSight) {
    if (inSight == inSight_) {
        return;
    }
    inSight_ = inSight;
    if (inSight_ && isStale_) {
        invalidate();
    }
    Q_EMIT inSightChanged();
}

void Screen::prepare() {
    if (isStale_) {
        isStale_ = false;
        refresh();
    }
}

void Screen::invalidate() {
    isStale_ = !inSight_;
    if (inSight_) {
        refresh();
    }
}

}  // namespace vantrell
