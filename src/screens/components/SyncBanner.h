#pragma once

#include "sync/SyncEngine.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// How the run under way is going, and the way to stop it.
class SyncBanner : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool isIndeterminate READ isIndeterminate NOTIFY changed)
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)

  public:
    explicit SyncBanner(SyncEngine& engine, QObject* parent = nullptr);

    /// A run is under way.
    [[nodiscard]] bool isShown() const { return engine_.isSyncing(); }
    [[nodiscard]] QString text() const;
    [[nodiscard]] bool isIndeterminate() const { return !share().has_value(); }
    /// 0 to 1.
    [[nodiscard]] double fraction() const { return share().value_or(0); }

    Q_INVOKABLE void stop() { engine_.requestStop(); }

  Q_SIGNALS:
    void changed();

  private:
    [[nodiscard]] std::optional<double> share() const;

    SyncEngine& engine_;
};

}  // namespace vantrell
