#pragma once

#include "base/TaskScope.h"
#include "calendar/ReportCalendar.h"
#include "data/ModelContainer.h"
#include "figures/EarningsStore.h"
#include "sync/SyncEngine.h"

#include <filesystem>
#include <memory>
#include <variant>

namespace vantrell {

/// What the program gets from the outside. All of it must outlive MyApp.
struct MyAppParts {
    HttpClient& http;
    Clock& clock;
    Worker& worker;
    const LocalTime& localTime;
    const Locale& locale;
    SecretStore& secrets;
    Defaults& defaults;
};

/// Why the program can't work, in words for the user.
struct StartFailure {
    std::string text;
};

/// The one place where the program is put together: it opens the store and owns the objects that live as long
/// as the process. Nothing here is rebuilt, and no request is made.
class MyApp {
  public:
    /// Opens the store with mirroring, else without; a store that opens in neither way is the only stop of
    /// the program.
    [[nodiscard]] static std::variant<std::unique_ptr<MyApp>, StartFailure> start(
        const MyAppParts& parts, const std::filesystem::path& storeFile, SyncEngineSettings settings);

    /// As `close`.
    ~MyApp();
    MyApp(const MyApp&) = delete;
    MyApp& operator=(const MyApp&) = delete;

    /// To be called once the windows are gone. Ends what is under way, and tries once more to save what could
    /// not be saved; reports not yet reached keep their status.
    void close();
    /// To be called last. Where a task could not be ended, the process ends here, since nothing that the task
    /// refers to may go before it.
    void leave(int code) const;

    /// To read: the engine alone changes the store.
    [[nodiscard]] const ModelContext& context() const { return container_->mainContext(); }
    /// For what works as the engine does.
    [[nodiscard]] ModelContext& contextToChange() { return container_->mainContext(); }
    /// The store mirrors through the platform's cloud.
    [[nodiscard]] bool cloudSyncActive() const { return cloudSyncActive_; }
    [[nodiscard]] EarningsStore& store() { return store_; }
    [[nodiscard]] SyncEngine& engine() { return engine_; }
    [[nodiscard]] TaskScope& tasks() { return tasks_; }

  private:
    MyApp(const MyAppParts& parts, std::unique_ptr<ModelContainer> container, bool cloudSyncActive,
          const SyncEngineSettings& settings);

    std::unique_ptr<ModelContainer> container_;
    bool cloudSyncActive_;
    TaskScope tasks_;  // outlives the engine, which ends what is under way
    ReportCalendar calendar_;
    SyncEngine engine_;
    EarningsStore store_;
};

}  // namespace vantrell
