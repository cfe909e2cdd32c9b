#include "screens/components/SyncBanner.h"

#include "screens/components/ShownText.h"
#include "screens/words/RunWords.h"

namespace vantrell {

SyncBanner::SyncBanner(SyncEngine& engine, QObject* parent) : QObject(parent), engine_(engine) {
    connect(&engine, &SyncEngine::isSyncingChanged, this, &SyncBanner::changed);
    connect(&engine, &SyncEngine::progressChanged, this, &SyncBanner::changed);
}

QString SyncBanner::text() const {
    return shownText(runText(engine_.progress()).toStdString());
}

std::optional<double> SyncBanner::share() const {
    const auto progress = engine_.progress();
    return progress ? progress->fraction : std::nullopt;
}

}  // namespace vantrell
