#pragma once

#include "base/Clock.h"
#include "base/Lifetime.h"
#include "base/TaskScope.h"
#include "figures/EarningsStore.h"
#include "sync/SyncEngine.h"

#include <chrono>

#include <QObject>
#include <qcoro/qcorotask.h>

namespace vantrell {

/// Keeps the data moving while the main window lives: on its first appearance, every 900 seconds and each
/// time it becomes active the figures are read again, what waits to be saved is tried again, and a run starts
/// if one is due; the first time the store's file is looked through before that. Each new `revision` of the
/// engine is read as well. The engine's throttle decides what is due, so all of these may fire at will. Much
/// to read is read in steps, between which the window can move.
///
/// All that is handed over must outlive the loop, and `tasks` the engine.
class DriveLoop : public QObject {
    Q_OBJECT

  public:
    struct Parts {
        SyncEngine& engine;
        EarningsStore& store;
        const ModelContext& context;
        Clock& clock;
        TaskScope& tasks;
    };

    explicit DriveLoop(const Parts& parts);

    /// To be called once, when the window first appears.
    void start();
    /// To be called whenever the window becomes active.
    void becameActive();

  private:
    [[nodiscard]] static QCoro::Task<> reload(Parts parts, std::stop_token cancel);
    [[nodiscard]] static QCoro::Task<> reloadNext(Parts parts, std::stop_token cancel);
    [[nodiscard]] static QCoro::Task<> begin(Parts parts, std::stop_token cancel);
    [[nodiscard]] static QCoro::Task<> goRound(Parts parts, std::stop_token cancel);
    [[nodiscard]] static QCoro::Task<> repeat(Parts parts, std::stop_token cancel);

    Parts parts_;
    std::chrono::microseconds keyRead_;  ///< when the keyring was last asked, by the monotonic clock
    Lifetime life_;
};

}  // namespace vantrell
