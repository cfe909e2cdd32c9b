#include "core/MyApp.h"

#include "CoreLog.h"
#include "base/ProgramVersion.h"

#include <chrono>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace vantrell {

std::variant<std::unique_ptr<MyApp>, StartFailure> MyApp::start(const MyAppParts& parts,
                                                                const std::filesystem::path& storeFile,
                                                                SyncEngineSettings settings) {
    qCInfo(coreLog) << "version" << QByteArray::fromStdString(std::string(programVersion())) << "on Qt"
                    << qVersion();
    settings.keptLines = storeFile.parent_path() / "backup";
    bool cloudSyncActive = true;
    auto opened = ModelContainer::open({.file = storeFile, .cloudDatabase = CloudDatabase::automatic});
    if (std::holds_alternative<StoreError>(opened)) {
        // Why it doesn't mirror is of no interest: the Settings screen shows that it doesn't.
        cloudSyncActive = false;
        opened = ModelContainer::open({.file = storeFile, .cloudDatabase = CloudDatabase::none});
    }
    if (const auto* error = std::get_if<StoreError>(&opened)) {
        qCWarning(coreLog) << "no store:" << error->description.c_str();
        return StartFailure{"Could not create the model container: " + error->description};
    }
    auto& container = std::get<std::unique_ptr<ModelContainer>>(opened);
    return std::unique_ptr<MyApp>(new MyApp(parts, std::move(container), cloudSyncActive, settings));
}

MyApp::MyApp(const MyAppParts& parts, std::unique_ptr<ModelContainer> container, bool cloudSyncActive,
             const SyncEngineSettings& settings)
    : container_(std::move(container)),
      cloudSyncActive_(cloudSyncActive),
      calendar_(parts.clock, parts.localTime),
      engine_({.context = container_->mainContext(),
               .http = parts.http,
               .clock = parts.clock,
               .worker = parts.worker,
               .localTime = parts.localTime,
               .secrets = parts.secrets,
               .defaults = parts.defaults},
              settings),
      store_(parts.defaults, parts.locale, calendar_) {}

MyApp::~MyApp() {
    close();
}

void MyApp::close() {
    constexpr auto patience = std::chrono::seconds(10);
    engine_.close();
    tasks_.finish(patience);
    if (tasks_.pending() != 0) {
        qCWarning(coreLog) << tasks_.pending() << "tasks did not end in time and are let go";
    }
    contextToChange().holdSaves(false);
    // Told by the store's health to whoever asks before the store is closed.
    std::ignore = contextToChange().save();
}

void MyApp::leave(int code) const {
    if (tasks_.pending() != 0) {
        std::_Exit(code);
    }
}

}  // namespace vantrell
