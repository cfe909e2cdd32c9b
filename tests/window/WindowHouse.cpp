#include "WindowHouse.h"

#include "data/CredentialsKeychain.h"
#include "screens/ScreenParts.h"

#include <tuple>
#include <utility>

#include <QTest>

#include <gtest/gtest.h>

namespace vantrell::testing {

WindowHouse::WindowHouse(const LocaleNames& locale) : locale_(locale) {
    clock_.autoAdvance = false;
    // No run begins by itself, since the last one was just now.
    defaults_.setDate("lastAutoSyncAt", clock_.now());
    CredentialsKeychain(secrets_).store({"issuer", "key", "not a key", "vendor"});
    http_.respond = [](const HttpRequest&) { return HttpFailure{HttpFailure::Kind::refused}; };
    auto begun = MyApp::start(parts(), folder_.path() / "vantrell.sqlite",
                              {origins_.reportService, origins_.rateService, {}});
    app_ = std::move(std::get<std::unique_ptr<MyApp>>(begun));
    windows_ = std::make_unique<AppWindows>(*app_, parts(), windowParts());
}

AppWindowsParts WindowHouse::windowParts() {
    return {.origins = origins_,
            .appearance = appearance_,
            .icons = {.folder = folder_.path() / "icons"},
            .placementFile = std::nullopt};
}

TourParts WindowHouse::tour() {
    windows_.reset();
    std::ignore = app_->contextToChange().save();
    app_->store().reload(app_->context());
    return {*app_, parts(), windowParts(), folder_.path() / "vantrell.sqlite"};
}

void WindowHouse::sold(const std::string& date, const std::string& title, const std::string& currency,
                       int lines) {
    const Line line{.currency = currency, .title = title, .sku = title, .country = currency};
    report(ReportFrequency::daily, date, std::vector<Line>(static_cast<std::size_t>(lines), line));
    const auto stored = *context().salesReports().find(salesReportKey("DAILY", date));
    SalesReport told = stored.record;
    told.message = title;
    context().salesReports().update(stored.id, told);
}

void WindowHouse::show() {
    std::ignore = app_->contextToChange().save();
    windows_->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return app_->store().isLoaded(); }));
}

}  // namespace vantrell::testing
