#pragma once

#include "screens/ScreenParts.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The buttons that fetch what is due: a backfill as long as no day is held, else the ordinary run. Nothing
/// is fetched into a damaged store.
class SyncButton : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(bool isSpinning READ isSpinning NOTIFY changed)
    Q_PROPERTY(bool isEnabled READ isEnabled NOTIFY changed)

  public:
    explicit SyncButton(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] bool isSpinning() const { return parts_.engine.isSyncing(); }
    [[nodiscard]] bool isEnabled() const;

    /// Does nothing while disabled.
    Q_INVOKABLE void press();

  Q_SIGNALS:
    void changed();

  private:
    ScreenParts parts_;
};

}  // namespace vantrell
