#pragma once

#include "platform/Appearance.h"
#include "screens/ScreenParts.h"
#include "testing/EarningsFixture.h"
#include "testing/EngineFixture.h"

namespace vantrell::testing {

/// What a screen's model works with, over reports that a test writes down in short.
class TablesFixture : public EarningsFixture {
  public:
    TablesFixture() { rates({{"USD", 1}, {"EUR", 0.5}}); }

    [[nodiscard]] ScreenParts parts() {
        return {store(),      runs.engine(), context(), clock,      localTime, english,
                runs.tasks(), runs.http,     defaults,  appearance, origins};
    }

    EngineFixture runs;
    Locale english{LocaleNames{"en_US", "en_US", "en_US", "en_US", "en_US"}};
    FixedAppearance appearance;
    ServiceOrigins origins{"https://reports.test", "https://rates.test", "https://lookup.test",
                           "https://keys.test"};
};

}  // namespace vantrell::testing
