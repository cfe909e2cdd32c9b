#include "files/InstanceGuard.h"

#include <sys/socket.h>
#include <thread>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalSocket>

namespace vantrell {
namespace {

constexpr std::chrono::milliseconds pauseBetweenTries{20};
constexpr const char* raisedAnswer = "vantrell is raised\n";

QString toQt(const std::filesystem::path& path) {
    return QFile::decodeName(path.c_str());
}

/// Short, since the name of a socket may have about a hundred bytes.
std::filesystem::path nameFor(const std::filesystem::path& dataFolder) {
    std::error_code failed;
    const auto folder = std::filesystem::weakly_canonical(dataFolder, failed);
    const QByteArray path((failed ? dataFolder : folder).c_str());
    const auto hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().first(16);
    return "vantrell-" + hash.toStdString();
}

std::filesystem::path withEnding(std::filesystem::path name, const char* ending) {
    return name += ending;
}

int wait(const QDeadlineTimer& deadline) {
    return static_cast<int>(deadline.remainingTime());
}

/// In a folder for everybody, whoever listens may be somebody else.
bool isOfThisUser(const QLocalSocket& peer) {
    ucred about{};
    socklen_t size = sizeof(about);
    return ::getsockopt(static_cast<int>(peer.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &about, &size) ==
               0 &&
           about.uid == ::geteuid();
}

bool answersProperly(QLocalSocket& peer, const QDeadlineTimer& deadline) {
    const auto length = static_cast<qint64>(qstrlen(raisedAnswer));
    while (peer.bytesAvailable() < length) {
        if (!peer.waitForReadyRead(wait(deadline))) {
            return false;
        }
    }
    return peer.read(length) == raisedAnswer;
}

}  // namespace

InstanceGuard::InstanceGuard(const std::filesystem::path& dataFolder,
                             const std::filesystem::path& meetingPlace)
    : name_(meetingPlace / nameFor(dataFolder)), lock_(withEnding(name_, ".lock")) {
    if (lock_.state() == FileLock::State::held) {
        listen();
    }
}

void InstanceGuard::listen() {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &InstanceGuard::answer);
    const auto socket = toQt(withEnding(name_, ".socket"));
    // Whoever made it is gone, since the lock is ours. Without a socket nobody can wake this program, and
    // nothing else is lost.
    QLocalServer::removeServer(socket);
    server_.listen(socket);
}

void InstanceGuard::answer() {
    while (auto* const caller = server_.nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->write(raisedAnswer);
        caller->disconnectFromServer();
        Q_EMIT wakened();
    }
}

bool InstanceGuard::wakeFirst(std::chrono::milliseconds patience) const {
    const QDeadlineTimer deadline(patience);
    QLocalSocket first;
    do {
        first.connectToServer(toQt(withEnding(name_, ".socket")), QIODevice::ReadOnly);
        if (first.waitForConnected(wait(deadline))) {
            return isOfThisUser(first) && answersProperly(first, deadline);
        }
        std::this_thread::sleep_for(pauseBetweenTries);
    } while (!deadline.hasExpired());
    return false;
}

std::filesystem::path InstanceGuard::hostMeetingPlace() {
    const auto ofSession = QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
    const bool isThere = QDir::isAbsolutePath(ofSession) && QDir(ofSession).exists();
    return QFile::encodeName(isThere ? ofSession : QDir::tempPath()).toStdString();
}

}  // namespace vantrell
