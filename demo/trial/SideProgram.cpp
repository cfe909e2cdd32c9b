#include "trial/SideProgram.h"

#include "data/CredentialsKeychain.h"
#include "keys/KeyPair.h"

#include <stdexcept>
#include <utility>
#include <variant>

namespace vantrell {

SideProgram::SideProgram(const TourParts& tour, HttpClient& http, Key key,
                         const std::optional<std::filesystem::path>& storeFile)
    : folder_(temporary_.path().toStdString()), defaults_(folder_ / "defaults.json") {
    if (key == Key::stored) {
        CredentialsKeychain(secrets_).store({"issuer", "key", generateKeyPair().privatePEM, "vendor"});
    }
    const std::filesystem::path ownStore = folder_ / "vantrell.sqlite";
    if (storeFile) {
        std::filesystem::copy_file(*storeFile, ownStore);
    }
    const MyAppParts own{.http = http,
                         .clock = tour.parts.clock,
                         .worker = tour.parts.worker,
                         .localTime = tour.parts.localTime,
                         .locale = tour.parts.locale,
                         .secrets = secrets_,
                         .defaults = defaults_};
    const ServiceOrigins& origins = tour.windowParts.origins;
    auto begun = MyApp::start(own, ownStore, {origins.reportService, origins.rateService});
    if (const auto* failure = std::get_if<StartFailure>(&begun)) {
        throw std::runtime_error(failure->text);
    }
    app_ = std::move(std::get<std::unique_ptr<MyApp>>(begun));
    app_->store().setDisplayCurrency(tour.app.store().displayCurrency());
    app_->store().reload(app_->context());
    windows_ = std::make_unique<AppWindows>(*app_, own, tour.windowParts);
    windows_->mainWindow().show();
}

}  // namespace vantrell
