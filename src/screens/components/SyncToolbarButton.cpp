#include "screens/components/SyncToolbarButton.h"

namespace vantrell {

SyncToolbarButton::SyncToolbarButton(SyncEngine& engine, TaskScope& tasks, QObject* parent)
    : QObject(parent), engine_(engine), tasks_(tasks) {
    connect(&engine, &SyncEngine::isSyncingChanged, this, &SyncToolbarButton::changed);
    connect(&engine.account(), &Account::hasCredentialsChanged, this, &SyncToolbarButton::changed);
}

void SyncToolbarButton::press() {
    if (isEnabled()) {
        tasks_.spawn(engine_.runDue());
    }
}

}  // namespace vantrell
