#include "trial/TrialSurroundings.h"

#include "core/PublicServices.h"
#include "data/CredentialsKeychain.h"
#include "keys/KeyPair.h"
#include "reports/APIToken.h"

#include <cstdlib>
#include <optional>
#include <utility>

#include <QTemporaryDir>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

constexpr const char* issuerID = "3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15";
constexpr const char* keyID = "7QK2MZ8T5W";
constexpr const char* vendorNumber = "60419372";

std::optional<std::string> environmentVariable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

// Where the store lies: the folder that was named, or a temporary one that stays for whoever wants to look.
fs::path dataFolder(const TrialOptions& options) {
    if (options.data) {
        return *options.data;
    }
    QTemporaryDir folder;
    folder.setAutoRemove(false);
    return folder.path().toStdString();
}

// The sample service lets in whoever signs with the key that was given; if that is no key, nobody.
std::string publicHalf(const std::string& privateKey) {
    try {
        return loadSigningKey(privateKey).publicPEM();
    } catch (const JWTError&) {
        return {};
    }
}

}  // namespace

TrialSurroundings::TrialSurroundings(const TrialOptions& options, std::optional<std::string> key)
    : options_(options),
      folder_(dataFolder(options)),
      locale_(LocaleNames::fromEnvironment(environmentVariable)),
      defaults_(folder_ / "defaults.json") {
    KeyPair keys = generateKeyPair();
    if (key) {
        keys.publicPEM = publicHalf(*key);
        keys.privatePEM = *std::move(key);
    }
    CredentialsKeychain(secrets_).store({issuerID, keyID, std::move(keys.privatePEM), vendorNumber});
    if (!options.service) {
        // The built-in service has another port each time, where the icons of the last time are no more.
        defaults_.remove("appIconURLs");
        account_ = std::make_unique<sample::SampleAccount>();
        service_ = std::make_unique<sample::SampleService>(
            *account_, sample::SampleAccess{issuerID, keyID, vendorNumber, std::move(keys.publicPEM)},
            clock_);
    }
    const std::string origin = options.service ? *options.service : service_->origin();
    // The last one is a page for the user's browser, and asked for nothing.
    origins_ = {origin, origin, origin, publicServices().keyWebSite};
}

std::variant<std::unique_ptr<MyApp>, StartFailure> TrialSurroundings::start() {
    auto begun =
        MyApp::start(parts(), storeFile(), {origins_.reportService, origins_.rateService, options_.pause});
    if (const auto* app = std::get_if<std::unique_ptr<MyApp>>(&begun); app != nullptr && options_.currency) {
        (*app)->store().setDisplayCurrency(*options_.currency);
    }
    return begun;
}

AppWindowsParts TrialSurroundings::windowParts(Appearance& appearance) const {
    return {.origins = origins_,
            .appearance = appearance,
            .icons = {.folder = folder_ / "cache" / "icons", .plainOrigin = origins_.lookupService},
            .placementFile = folder_ / "window.json"};
}

}  // namespace vantrell
