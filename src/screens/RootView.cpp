#include "screens/RootView.h"

#include "screens/components/ShownText.h"

#include <algorithm>

namespace vantrell {

RootView::RootView(const ScreenParts& parts, QObject* parent)
    : QObject(parent),
      parts_(parts),
      driveLoop_({parts.engine, parts.store, parts.context, parts.clock, parts.tasks}),
      filter_(parts.store),
      syncButton_(parts.engine, parts.tasks),
      breakdown_(parts),
      dashboard_(parts),
      history_(parts),
      payouts_(parts),
      settings_(parts),
      welcome_(parts),
      menu_(about_) {
    destinations_.show(destinationItems());
    connect(&parts.engine, &SyncEngine::hasCredentialsChanged, this, &RootView::hasCredentialsChanged);
    connect(this, &RootView::hasCredentialsChanged, this, &RootView::shownScreenChanged);
    connect(this, &RootView::selectionChanged, this, &RootView::shownScreenChanged);
    connect(&parts.engine, &SyncEngine::isSyncingChanged, this, &RootView::footerChanged);
    connect(&parts.engine, &SyncEngine::progressTextChanged, this, &RootView::footerChanged);
    connect(&parts.engine, &SyncEngine::lastRunSummaryChanged, this, &RootView::footerChanged);
}

Screen* RootView::shownScreen() {
    if (!hasCredentials()) {
        return nullptr;
    }
    switch (selection()) {
        case Destination::dashboard:
        case Destination::apps:
        case Destination::byDay:
            return &dashboard_;
        case Destination::history:
            return &history_;
        case Destination::payouts:
            return &payouts_;
        case Destination::settings:
            return &settings_;
    }
    return nullptr;
}

void RootView::select(Destination::Value destination) {
    if (selection_ != destination) {
        selection_ = destination;
        Q_EMIT selectionChanged();
    }
}

void RootView::selectNext(int steps) {
    const int last = static_cast<int>(Destination::settings);
    select(static_cast<Destination::Value>(std::clamp(static_cast<int>(selection()) + steps, 0, last)));
}

QString RootView::screenTitle() const {
    return destinationItems()[static_cast<std::size_t>(selection())].title;
}

QString RootView::footer() const {
    const SyncEngine& engine = parts_.engine;
    if (!engine.isSyncing()) {
        return shownText(engine.lastRunSummary());
    }
    const std::string progress = engine.progressText();
    return progress.empty() ? tr("Syncing…") : shownText(progress);
}

void RootView::appear() {
    driveLoop_.start();
}

void RootView::becomeActive() {
    driveLoop_.becameActive();
}

}  // namespace vantrell
