#pragma once

#include "screens/ScreenParts.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// A screen's model. It works out what it shows from the store when the store publishes something new, but
/// only while it is in sight: a hidden screen catches up when it is shown.
class Screen : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("a base")
    Q_PROPERTY(bool inSight READ inSight WRITE setInSight NOTIFY inSightChanged)

  public:
    explicit Screen(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] bool inSight() const { return inSight_; }
    void setInSight(bool inSight);
    /// Catches up while it is hidden, so that nothing is left to do when it is shown.
    Q_INVOKABLE void prepare();

  Q_SIGNALS:
    void inSightChanged();

  protected:
    /// Brings everything that is shown up to date.
    virtual void refresh() = 0;
    /// Calls `refresh` now or, while hidden, when next in sight.
    void invalidate();

    [[nodiscard]] const ScreenParts& parts() const { return parts_; }
    [[nodiscard]] EarningsStore& store() const { return parts_.store; }
    [[nodiscard]] const SharedSnapshot& snapshot() const { return parts_.store.snapshot(); }
    [[nodiscard]] SyncEngine& engine() const { return parts_.engine; }
    [[nodiscard]] const Locale& locale() const { return parts_.locale; }

  private:
    ScreenParts parts_;
    bool inSight_ = false;
    bool isStale_ = true;
};

}  // namespace vantrell
