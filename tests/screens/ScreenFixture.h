#pragma once

#include "screens/Appearance.h"
#include "screens/ScreenParts.h"
#include "testing/EarningsFixture.h"
#include "testing/EngineFixture.h"

namespace vantrell::testing {

/// What a screen's model works with: an engine whose runs answer at once and a store over the same records.
/// In US dollars, on 22 November 2026 in Berlin, with a key.
class ScreenFixture final : public EngineFixture, public ShortReports {
  public:
    explicit ScreenFixture(const std::string& localeName = "en_US")
        : locale({localeName, localeName, localeName, localeName, localeName}) {
        earnings.setDisplayCurrency("USD");
    }

    [[nodiscard]] ScreenParts parts() {
        return {.store = earnings,
                .engine = engine(),
                .context = context(),
                .clock = clock,
                .localTime = localTime,
                .locale = locale,
                .tasks = tasks(),
                .http = http,
                .defaults = defaults,
                .appearance = appearance,
                .origins = origins};
    }
    [[nodiscard]] ModelContext& context() override { return EngineFixture::context(); }
    void reload() { earnings.reload(context()); }

    Locale locale;
    ReportCalendar calendar{clock, localTime};
    EarningsStore earnings{defaults, locale, calendar};
    FixedAppearance appearance;
    ServiceOrigins origins{"https://reports.test", "https://rates.test", "https://lookup.test",
                           "https://keys.test"};
};

}  // namespace vantrell::testing
