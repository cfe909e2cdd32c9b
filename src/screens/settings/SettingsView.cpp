#include "screens/settings/SettingsView.h"

#include "screens/components/HostName.h"

namespace vantrell {

SettingsView::SettingsView(const ScreenParts& parts, QObject* parent)
    : Screen(parts, parent),
      credentials_(parts),
      display_(parts),
      sync_(parts),
      exports_(parts),
      log_(parts) {
    eachMinute_.setInterval(std::chrono::minutes(1));
    connect(&eachMinute_, &QTimer::timeout, &display_, &DisplaySettings::refresh);
    connect(this, &Screen::inSightChanged, this, &SettingsView::appearOrLeave);
}

QString SettingsView::cloudStatus() const {
    return parts().cloudSyncActive ? tr("Active") : tr("Not active — data is stored on this device only");
}

Tone::Value SettingsView::cloudTone() const {
    return parts().cloudSyncActive ? Tone::Good : Tone::Secondary;
}

QString SettingsView::privacyText() const {
    return tr("Your data never leaves this computer. Vantrell asks %1 for your own reports, %2 for daily "
              "exchange "
              "rates and %3 for the icons of your apps, whose pictures come from the addresses that it "
              "names. "
              "There is no server of ours and no analytics.")
        .arg(hostName(parts().origins.reportService), hostName(parts().origins.rateService),
             hostName(parts().origins.lookupService));
}

void SettingsView::refresh() {
    display_.refresh();
}

void SettingsView::appearOrLeave() {
    log_.setInSight(inSight() && isLogShown_);
    if (!inSight()) {
        eachMinute_.stop();
        return;
    }
    eachMinute_.start();
    credentials_.appear();
    sync_.appear();
    display_.refresh();
}

void SettingsView::showLog(bool isShown) {
    if (isShown != isLogShown_) {
        isLogShown_ = isShown;
        log_.setInSight(inSight() && isShown);
        Q_EMIT isLogShownChanged();
    }
}

}  // namespace vantrell
