#include "secrets/KeychainSecretStore.h"

#include "SecretServiceLock.h"
#include "SecretsLog.h"

#include <utility>

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <qt6keychain/keychain.h>

namespace vantrell {

namespace {

constexpr const char* lockedText = "The keyring is locked.";

/// For a question that the service answers without the user.
constexpr std::chrono::milliseconds questionPatience{1000};

/// Whether `job` finished before the deadline.
bool waitFor(const QKeychain::Job& job, const QDeadlineTimer& deadline) {
    QEventLoop loop;
    bool finished = false;
    QObject::connect(&job, &QKeychain::Job::finished, &loop, [&loop, &finished] {
        finished = true;
        loop.quit();
    });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(std::chrono::ceil<std::chrono::milliseconds>(deadline.remainingTimeAsDuration()));
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return finished;
}

}  // namespace

struct KeychainSecretStore::Outcome {
    QKeychain::Error error = QKeychain::OtherError;
    std::string message = "The secret service did not answer in time.";
    std::string secret;
    bool isLate = true;

    static Outcome of(const QKeychain::Job& done) {
        const auto* reading = qobject_cast<const QKeychain::ReadPasswordJob*>(&done);
        return {done.error(), done.errorString().toStdString(),
                reading != nullptr ? reading->textData().toStdString() : std::string(), false};
    }
    [[nodiscard]] std::optional<SecretError> asError() const {
        return error == QKeychain::NoError ? std::nullopt : std::optional(SecretError{error, message});
    }
};

KeychainSecretStore::KeychainSecretStore(std::chrono::milliseconds readPatience,
                                         std::chrono::milliseconds writePatience)
    : readPatience_(readPatience), writePatience_(writePatience) {}

SecretRead KeychainSecretStore::read(std::string_view service, std::string_view account) {
    const auto outcome =
        run(std::make_unique<QKeychain::ReadPasswordJob>(QString::fromUtf8(service)), account, readPatience_);
    qCInfo(secretsLog) << "read:" << outcome.error << outcome.message.c_str();
    if (outcome.isLate) {
        tellWhenAnswered(std::string(service), std::string(account));
        return SecretUnreadable{outcome.message};
    }
    return asRead(outcome, service, account);
}

SecretRead KeychainSecretStore::asRead(const Outcome& outcome, std::string_view service,
                                       std::string_view account) {
    if (outcome.error == QKeychain::NoError) {
        return outcome.secret;
    }
    // The library tells an item that the user did not unlock as one that does not exist.
    if (isSecretLocked(service, account, questionPatience)) {
        return SecretUnreadable{lockedText};
    }
    if (outcome.error == QKeychain::EntryNotFound) {
        return SecretAbsent{};
    }
    return SecretUnreadable{outcome.message};
}

// What is under way may be another job, behind which the read was not even begun.
void KeychainSecretStore::tellWhenAnswered(std::string service, std::string account) {
    if (!qobject_cast<QKeychain::ReadPasswordJob*>(underWay_)) {
        return;
    }
    QObject::connect(
        underWay_, &QKeychain::Job::finished, &context_,
        [this, service = std::move(service), account = std::move(account)](QKeychain::Job* done) {
            if (tellLate_) {
                tellLate_(asRead(Outcome::of(*done), service, account));
            }
        });
}

std::optional<SecretError> KeychainSecretStore::add(std::string_view service, std::string_view account,
                                                    std::string_view secret) {
    auto job = std::make_unique<QKeychain::WritePasswordJob>(QString::fromUtf8(service));
    job->setTextData(QString::fromUtf8(secret));
    return run(std::move(job), account, writePatience_).asError();
}

std::optional<SecretError> KeychainSecretStore::remove(std::string_view service, std::string_view account) {
    const auto outcome = run(std::make_unique<QKeychain::DeletePasswordJob>(QString::fromUtf8(service)),
                             account, writePatience_);
    if (outcome.error != QKeychain::NoError && outcome.error != QKeychain::EntryNotFound) {
        return outcome.asError();
    }
    // The library takes a lock that was not opened for done: it found nothing to remove.
    return isSecretLocked(service, account, questionPatience)
               ? std::optional(SecretError{QKeychain::AccessDenied, lockedText})
               : std::nullopt;
}

KeychainSecretStore::Outcome KeychainSecretStore::run(std::unique_ptr<QKeychain::Job> job,
                                                      std::string_view account,
                                                      std::chrono::milliseconds patience) {
    const QDeadlineTimer deadline(patience);
    // A job in the queue behind it would be carried out long after it was told as failed.
    if (underWay_ && !waitFor(*underWay_, deadline)) {
        return {};
    }
    job->setInsecureFallback(false);
    job->setKey(QString::fromUtf8(account));
    Outcome outcome;
    // Gone with this frame, so that a job that takes longer writes into nothing.
    const QObject here;
    QObject::connect(job.get(), &QKeychain::Job::finished, &here,
                     [&outcome](QKeychain::Job* done) { outcome = Outcome::of(*done); });
    // Once started it can't be taken back: it deletes itself when it is done, however long that takes.
    underWay_ = job.release();
    QObject::connect(underWay_, &QKeychain::Job::finished, &context_, [this] { underWay_ = nullptr; });
    underWay_->start();
    waitFor(*underWay_, deadline);
    return outcome;
}

}  // namespace vantrell
