#pragma once

#include "base/TaskScope.h"
#include "sync/SyncEngine.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The button that fetches new reports: a backfill as long as no day is held, else the ordinary run.
class SyncToolbarButton : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(bool isSpinning READ isSpinning NOTIFY changed)
    Q_PROPERTY(bool isEnabled READ isEnabled NOTIFY changed)

  public:
    /// `tasks` must outlive the engine.
    SyncToolbarButton(SyncEngine& engine, TaskScope& tasks, QObject* parent = nullptr);

    [[nodiscard]] bool isSpinning() const { return engine_.isSyncing(); }
    [[nodiscard]] bool isEnabled() const { return !engine_.isSyncing() && engine_.hasCredentials(); }

    /// Does nothing while disabled.
    Q_INVOKABLE void press();

  Q_SIGNALS:
    void changed();

  private:
    SyncEngine& engine_;
    TaskScope& tasks_;
};

}  // namespace vantrell
