#include "screens/components/SyncButton.h"

namespace vantrell {

SyncButton::SyncButton(const ScreenParts& parts, QObject* parent) : QObject(parent), parts_(parts) {
    connect(&parts.engine, &SyncEngine::isSyncingChanged, this, &SyncButton::changed);
    connect(&parts.engine.account(), &Account::hasCredentialsChanged, this, &SyncButton::changed);
    connect(&parts.context.health(), &StoreHealth::changed, this, &SyncButton::changed);
}

bool SyncButton::isEnabled() const {
    return !isSpinning() && parts_.engine.hasCredentials() && !parts_.context.health().isDamaged();
}

void SyncButton::press() {
    if (isEnabled()) {
        parts_.tasks.spawn(parts_.engine.runDue());
    }
}

}  // namespace vantrell
