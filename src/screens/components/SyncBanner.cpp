#include "screens/components/SyncBanner.h"

#include "screens/components/ShownText.h"

namespace vantrell {

SyncBanner::SyncBanner(SyncEngine& engine, QObject* parent) : QObject(parent), engine_(engine) {
    connect(&engine, &SyncEngine::isSyncingChanged, this, &SyncBanner::changed);
    connect(&engine, &SyncEngine::progressTextChanged, this, &SyncBanner::changed);
    connect(&engine, &SyncEngine::progressFractionChanged, this, &SyncBanner::changed);
}

QString SyncBanner::text() const {
    const std::string progress = engine_.progressText();
    return progress.empty() ? tr("Syncing…") : shownText(progress);
}

}  // namespace vantrell
