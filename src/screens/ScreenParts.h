#pragma once

#include "base/Clock.h"
#include "base/LocalTime.h"
#include "base/TaskScope.h"
#include "figures/EarningsStore.h"
#include "files/Defaults.h"
#include "locale/Locale.h"
#include "net/HttpClient.h"
#include "screens/Appearance.h"
#include "screens/OtherStores.h"
#include "sync/SyncEngine.h"

#include <string>

namespace vantrell {

/// Where the services are, as origins ("https://host", no path). The texts name them by their hosts.
struct ServiceOrigins {
    std::string reportService;
    std::string rateService;
    std::string lookupService;
    /// The web site where keys are made.
    std::string keyWebSite;
};

/// What the screens read and act on. All of it must outlive them.
struct ScreenParts {
    EarningsStore& store;
    SyncEngine& engine;
    const ModelContext& context;
    Clock& clock;
    const LocalTime& localTime;
    const Locale& locale;
    TaskScope& tasks;
    HttpClient& http;
    Defaults& defaults;
    Appearance& appearance;
    const ServiceOrigins& origins;
    /// Absent where there can be none.
    OtherStores* otherStores = nullptr;
    /// The store mirrors through the platform's cloud.
    bool cloudSyncActive = false;
};

}  // namespace vantrell
