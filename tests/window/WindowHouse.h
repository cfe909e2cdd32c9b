#pragma once

#include "base/Worker.h"
#include "core/AppWindows.h"
#include "screens/Appearance.h"
#include "secrets/MemorySecretStore.h"
#include "testing/EarningsFixture.h"
#include "testing/FixedLocalTime.h"
#include "testing/ManualClock.h"
#include "testing/MemoryDefaults.h"
#include "testing/ScriptedHttp.h"
#include "testing/TemporaryFolder.h"
#include "trial/ScreenTour.h"

#include <memory>
#include <string>

namespace vantrell::testing {

/// The program's windows over an empty store of their own, with a key, time that stands still and a service
/// that never answers. The clock stands at 22 November 2026, noon UTC, in Berlin.
class WindowHouse final : public ShortReports {
  public:
    explicit WindowHouse(const LocaleNames& locale = usDollars());
    static LocaleNames usDollars() { return {"en_US", "en_US", "en_US", "en_US", "en_US"}; }

    [[nodiscard]] MyApp& app() { return *app_; }
    [[nodiscard]] ModelContext& context() override { return app_->contextToChange(); }
    [[nodiscard]] AppWindows& windows() { return *windows_; }
    [[nodiscard]] QQuickWindow& window() { return windows_->mainWindow(); }
    [[nodiscard]] ScriptedHttp& http() { return http_; }
    [[nodiscard]] FixedAppearance& appearance() { return appearance_; }

    /// Puts one daily report of `lines` of an app with this title into the store.
    void sold(const std::string& date, const std::string& title, const std::string& currency, int lines = 1);
    /// Saves, shows the window and waits for its figures.
    void show();
    /// Saves and reads what was stored; the house's own window goes.
    [[nodiscard]] TourParts tour();

  private:
    [[nodiscard]] MyAppParts parts() {
        return {http_, clock_, worker_, localTime_, locale_, secrets_, defaults_};
    }
    [[nodiscard]] AppWindowsParts windowParts();

    TemporaryFolder folder_;
    ManualClock clock_;
    ImmediateWorker worker_;
    FixedLocalTime localTime_{"Europe/Berlin"};
    Locale locale_;
    ScriptedHttp http_;
    MemorySecretStore secrets_;
    MemoryDefaults defaults_;
    FixedAppearance appearance_;
    ServiceOrigins origins_{"https://reports.example", "https://rates.example", "https://lookup.example",
                            "https://keys.example"};
    std::unique_ptr<MyApp> app_;
    std::unique_ptr<AppWindows> windows_;
};

}  // namespace vantrell::testing
