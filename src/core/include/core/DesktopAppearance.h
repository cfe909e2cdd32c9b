#pragma once

#include "screens/Appearance.h"

#include <chrono>

class QDBusVariant;

namespace vantrell {

/// What the desktop's settings portal says, followed while the program runs. Nobody waits for the portal:
/// what it says comes through the signals, and without an answer within `patience` only later changes count.
class DesktopAppearance final : public Appearance {
    Q_OBJECT

  public:
    explicit DesktopAppearance(std::chrono::milliseconds patience = std::chrono::seconds(5));

  private Q_SLOTS:
    void apply(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void ask(QLatin1StringView group, QLatin1StringView key, std::chrono::milliseconds patience);
};

}  // namespace vantrell
