#include "core/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace vantrell {
namespace {

constexpr QLatin1StringView service("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView portalPath("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView interface("org.freedesktop.portal.Settings");

constexpr QLatin1StringView appearance("org.freedesktop.appearance");
constexpr QLatin1StringView colorScheme("color-scheme");
constexpr uint prefersDark = 1;
constexpr QLatin1StringView desktop("org.gnome.desktop.interface");
constexpr QLatin1StringView enableAnimations("enable-animations");

/// The portal's answers wrap the value twice, its signals once.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

}  // namespace

DesktopAppearance::DesktopAppearance(std::chrono::milliseconds patience) {
    // Changes are listened to first, so that none falls between the answer and the first signal.
    QDBusConnection::sessionBus().connect(service, portalPath, interface, QStringLiteral("SettingChanged"),
                                          this, SLOT(apply(QString, QString, QDBusVariant)));
    ask(appearance, colorScheme, patience);
    ask(desktop, enableAnimations, patience);
}

void DesktopAppearance::ask(QLatin1StringView group, QLatin1StringView key,
                            std::chrono::milliseconds patience) {
    auto message = QDBusMessage::createMethodCall(service, portalPath, interface, QStringLiteral("Read"));
    message.setArguments({QString(group), QString(key)});
    const auto call = QDBusConnection::sessionBus().asyncCall(message, static_cast<int>(patience.count()));
    auto* const answer = new QDBusPendingCallWatcher(call, this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, group, key, answer] {
        answer->deleteLater();
        if (const QDBusPendingReply<QDBusVariant> reply = *answer; reply.isValid()) {
            apply(group, key, reply.value());
        }
    });
}

void DesktopAppearance::apply(const QString& group, const QString& key, const QDBusVariant& value) {
    const auto setting = unwrapped(value.variant());
    if (group == appearance && key == colorScheme) {
        changeDark(setting.metaType() == QMetaType::fromType<uint>() && setting.toUInt() == prefersDark);
    } else if (group == desktop && key == enableAnimations) {
        changeReducesMotion(setting.metaType() == QMetaType::fromType<bool>() && !setting.toBool());
    }
}

}  // namespace vantrell
