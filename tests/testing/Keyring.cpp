#include "testing/Keyring.h"

#include <csignal>
#include <stdexcept>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDeadlineTimer>

namespace vantrell::testing {

namespace {

using Paths = QList<QDBusObjectPath>;

void require(bool condition, const char* what) {
    if (!condition) {
        throw std::runtime_error(what);
    }
}

QVariantList ask(QLatin1StringView method, const QVariant& argument) {
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.secrets"),
                                                  QStringLiteral("/org/freedesktop/secrets"),
                                                  QStringLiteral("org.freedesktop.Secret.Service"), method);
    message.setArguments({argument});
    const auto reply = QDBusConnection::sessionBus().call(message);
    require(reply.type() == QDBusMessage::ReplyMessage, "the secret service refused a question");
    return reply.arguments();
}

}  // namespace

Keyring::Keyring() {
    const auto* bus = QDBusConnection::sessionBus().interface();
    const auto isUp = [bus] {
        return bus->isServiceRegistered(QStringLiteral("org.freedesktop.secrets")).value();
    };
    require(bus != nullptr && !isUp(), "run this on a session bus of its own, as ctest does");
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const auto* name :
         {"HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
        environment.insert(QLatin1StringView(name), folder_.path());
    }
    daemon_.setProcessEnvironment(environment);
    daemon_.start(
        QStringLiteral("gnome-keyring-daemon"),
        {QStringLiteral("--foreground"), QStringLiteral("--unlock"), QStringLiteral("--components=secrets"),
         QStringLiteral("--control-directory=") + folder_.filePath(QStringLiteral("control"))});
    require(daemon_.waitForStarted(10'000), "gnome-keyring-daemon can't be started");
    daemon_.write("password");
    daemon_.closeWriteChannel();
    for (const QDeadlineTimer deadline(10'000); !isUp();) {
        require(!deadline.hasExpired(), "gnome-keyring-daemon did not come up");
        daemon_.waitForReadyRead(10);
    }
}

Keyring::~Keyring() {
    letGo();
    daemon_.terminate();
    daemon_.waitForFinished(10'000);
}

void Keyring::lock() {
    const auto alias = ask(QLatin1StringView("ReadAlias"), QStringLiteral("default"));
    const auto collection = alias.first().value<QDBusObjectPath>();
    const auto reply = ask(QLatin1StringView("Lock"), QVariant::fromValue(Paths{collection}));
    require(qdbus_cast<Paths>(reply.first()) == Paths{collection}, "the collection could not be locked");
}

void Keyring::hold() {
    ::kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP);
}

void Keyring::letGo() {
    ::kill(static_cast<pid_t>(daemon_.processId()), SIGCONT);
}

}  // namespace vantrell::testing
