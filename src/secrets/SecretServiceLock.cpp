#include "SecretServiceLock.h"

#include <algorithm>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDeadlineTimer>

namespace vantrell {

namespace {

using Attributes = QMap<QString, QString>;

/// The service's answers to a few questions, all of them within one stretch of time.
class Inquiry {
  public:
    explicit Inquiry(std::chrono::milliseconds patience) : deadline_(patience) {}

    QDBusMessage ask(const QString& path, QLatin1StringView interface, QLatin1StringView method,
                     const QVariantList& arguments) const {
        auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.secrets"), path,
                                                      interface, method);
        message.setArguments(arguments);
        const auto left = static_cast<int>(std::max<qint64>(deadline_.remainingTime(), 1));
        return QDBusConnection::sessionBus().call(message, QDBus::Block, left);
    }

    QDBusMessage askService(QLatin1StringView method, const QVariantList& arguments) const {
        return ask(QStringLiteral("/org/freedesktop/secrets"),
                   QLatin1StringView("org.freedesktop.Secret.Service"), method, arguments);
    }

  private:
    QDeadlineTimer deadline_;
};

bool isDefaultCollectionLocked(const Inquiry& inquiry) {
    const auto alias =
        inquiry.askService(QLatin1StringView("ReadAlias"), {QStringLiteral("default")}).arguments();
    const auto path = alias.isEmpty() ? QString() : alias.first().value<QDBusObjectPath>().path();
    if (path.size() <= 1) {
        return false;
    }
    const auto locked =
        inquiry
            .ask(path, QLatin1StringView("org.freedesktop.DBus.Properties"), QLatin1StringView("Get"),
                 {QStringLiteral("org.freedesktop.Secret.Collection"), QStringLiteral("Locked")})
            .arguments();
    return !locked.isEmpty() && locked.first().value<QDBusVariant>().variant().toBool();
}

}  // namespace

bool isSecretLocked(std::string_view service, std::string_view account, std::chrono::milliseconds patience) {
    qDBusRegisterMetaType<Attributes>();
    const Inquiry inquiry(patience);
    // The names under which the keychain library files an item.
    const Attributes attributes{{QStringLiteral("server"), QString::fromUtf8(service)},
                                {QStringLiteral("user"), QString::fromUtf8(account)}};
    const auto found =
        inquiry.askService(QLatin1StringView("SearchItems"), {QVariant::fromValue(attributes)}).arguments();
    const bool itemLocked = found.size() == 2 && !qdbus_cast<QList<QDBusObjectPath>>(found.last()).isEmpty();
    // Some services hide the items of a locked collection from a search.
    return itemLocked || isDefaultCollectionLocked(inquiry);
}

}  // namespace vantrell
