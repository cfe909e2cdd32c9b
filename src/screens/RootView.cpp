#include "screens/RootView.h"

#include "screens/components/ShownText.h"
#include "screens/words/RunWords.h"
#include "screens/words/StoreNotice.h"
#include "screens/words/UnitsCaption.h"

#include <algorithm>
#include <utility>

namespace vantrell {

RootView::RootView(const ScreenParts& parts, QObject* parent)
    : QObject(parent),
      parts_(parts),
      driveLoop_({parts.engine, parts.store, parts.context, parts.clock, parts.tasks}),
      icons_({parts.http, parts.defaults, parts.locale}, parts.origins.lookupService),
      filter_(parts.store, parts.locale),
      syncButton_(parts),
      breakdown_(parts),
      dashboard_(parts),
      apps_(parts, icons_),
      byDay_(parts, icons_),
      history_(parts),
      payouts_(parts),
      settings_(parts),
      welcome_(parts),
      about_(parts),
      menu_(about_) {
    destinations_.show(destinationItems());
    connect(&parts.appearance, &Appearance::isDarkChanged, this, &RootView::isDarkChanged);
    connect(&parts.appearance, &Appearance::reducesMotionChanged, this, &RootView::reducesMotionChanged);
    // The selected screen shows its figures first; the others are built after that.
    connect(&parts.store, &EarningsStore::isLoadedChanged, this, &RootView::hasFiguresChanged,
            Qt::QueuedConnection);
    connect(&parts.engine.account(), &Account::hasCredentialsChanged, this, &RootView::hasCredentialsChanged);
    // A key that was told late is due what one that was there from the start gets at once.
    connect(&parts.engine.account(), &Account::problemChanged, this, &RootView::becomeActive);
    connect(this, &RootView::hasCredentialsChanged, this, &RootView::shownScreenChanged);
    connect(this, &RootView::selectionChanged, this, &RootView::shownScreenChanged);
    connect(this, &RootView::shownScreenChanged, this, &RootView::screenTitleChanged);
    connect(&apps_, &AppsView::opened, this, &RootView::openApp);
    connect(&dashboard_, &DashboardView::logWanted, this, [this] {
        select(Destination::settings);
        settings_.openLog();
    });
    connect(&settings_, &SettingsView::isLogShownChanged, this, &RootView::screenTitleChanged);
    connect(&parts.engine, &SyncEngine::isSyncingChanged, this, &RootView::footerChanged);
    connect(&parts.engine, &SyncEngine::progressChanged, this, &RootView::footerChanged);
    connect(&parts.engine, &SyncEngine::lastRunChanged, this, &RootView::footerChanged);
    connect(&parts.context.health(), &StoreHealth::changed, this, &RootView::storeNoticeChanged);
}

QString RootView::title() const {
    const QString name = QStringLiteral("Vantrell");
    const int store = parts_.otherStores == nullptr ? 1 : parts_.otherStores->own();
    return store == 1 ? name
                      : name + captionJoiner() + tr("Store %1").arg(fromUtf8(parts_.locale.count(store)));
}

Screen* RootView::shownScreen() {
    if (!hasCredentials()) {
        return nullptr;
    }
    if (appDetail_ != nullptr) {
        return appDetail_.get();
    }
    switch (selection()) {
        case Destination::dashboard:
            return &dashboard_;
        case Destination::apps:
            return &apps_;
        case Destination::byDay:
            return &byDay_;
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
    const bool isNew = selection_ != destination;
    selection_ = destination;
    goBack();
    if (isNew) {
        Q_EMIT selectionChanged();
    }
}

void RootView::selectNext(int steps) {
    const int last = static_cast<int>(Destination::settings);
    select(static_cast<Destination::Value>(std::clamp(static_cast<int>(selection()) + steps, 0, last)));
}

QString RootView::screenTitle() const {
    if (appDetail_ != nullptr) {
        return appDetail_->title();
    }
    return isLogShown() ? tr("Sync Log") : destinationItems()[static_cast<std::size_t>(selection())].title;
}

void RootView::openApp(std::int64_t appID) {
    auto detail = std::make_unique<AppDetailView>(parts_, appID);
    connect(detail.get(), &AppDetailView::titleChanged, this, &RootView::screenTitleChanged);
    showApp(std::move(detail));
}

void RootView::goBack() {
    settings_.closeLog();
    if (appDetail_ != nullptr) {
        showApp(nullptr);
    }
}

// The old one goes after whoever is bound to it has been told. What lay beneath it is in sight again by then,
// so that it can take the focus.
void RootView::showApp(std::unique_ptr<AppDetailView> detail) {
    std::swap(appDetail_, detail);
    Q_EMIT shownScreenChanged();
    Q_EMIT appDetailChanged();
}

QString RootView::footer() const {
    const SyncEngine& engine = parts_.engine;
    const QString text = engine.isSyncing()
                             ? runText(engine.progress())
                             : runText(engine.lastRun(), parts_.locale, parts_.localTime.zone());
    return shownText(text.toStdString());
}

QString RootView::storeNotice() const {
    return vantrell::storeNotice(parts_.context.health());
}

Tone::Value RootView::storeTone() const {
    return parts_.context.health().isDamaged() ? Tone::Bad : Tone::Warning;
}

void RootView::appear() {
    driveLoop_.start();
}

void RootView::becomeActive() {
    driveLoop_.becameActive();
}

}  // namespace vantrell
