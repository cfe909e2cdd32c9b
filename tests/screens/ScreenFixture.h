#pragma once

#include "platform/Appearance.h"
#include "screens/ScreenParts.h"
#include "testing/EngineFixture.h"

namespace vantrell::testing {

/// What a screen's model works with: an engine whose runs answer at once and a store over the same records.
/// In US dollars, on 22 November 2026 in Berlin, with a key.
class ScreenFixture : public EngineFixture {
  public:
    ScreenFixture() { earnings.setDisplayCurrency("USD"); }

    [[nodiscard]] ScreenParts parts() {
        return {.store = earnings,
                .engine = engine(),
                .context = context(),
                .clock = clock,
                .localTime = localTime,
                .locale = english,
                .tasks = tasks(),
                .http = http,
                .defaults = defaults,
                .appearance = appearance,
                .origins = origins};
    }
    void reload() { earnings.reload(context()); }

    Locale english{LocaleNames{"en_US", "en_US", "en_US", "en_US", "en_US"}};
    ReportCalendar calendar{clock, localTime};
    EarningsStore earnings{defaults, english, calendar};
    FixedAppearance appearance;
    ServiceOrigins origins{"https://reports.test", "https://rates.test", "https://lookup.test",
                           "https://keys.test"};
};

}  // namespace vantrell::testing
