#pragma once

#include "base/Worker.h"
#include "calendar/ReportCalendar.h"
#include "data/APICredentials.h"
#include "data/CredentialsKeychain.h"
#include "reports/ASCClient.h"
#include "reports/ReportResponse.h"

#include <cstddef>
#include <optional>
#include <stop_token>
#include <string>

#include <QObject>
#include <QProperty>
#include <qcoro/qcorotask.h>

namespace vantrell {

/// What the service answered to a request that tries the key.
struct ConnectionTest {
    ReportResponse answer;  ///< of a report not the body,
    std::size_t lines = 0;  ///< but the number of its lines
};

/// The key to the account's reports: read at the start, saved, tried and removed. Main thread only.
class Account : public QObject {
    Q_OBJECT

  public:
    /// Reads the stored credentials of one of the user's stores. What is waited for
    /// ends with `end`; all else must outlive this.
    Account(SecretStore& secrets, ASCClient& client, const ReportCalendar& calendar, Worker& worker,
            std::stop_token end, int store);
    ~Account() override;

    /// The stored credentials are complete.
    [[nodiscard]] bool hasCredentials() const { return hasCredentials_; }
    /// Why the secret service could not be read at the start; absent when it could, also without a key. It
    /// may answer later.
    [[nodiscard]] const std::optional<std::string>& problem() const { return problem_; }
    /// What requests are signed with; four empty texts without a key.
    [[nodiscard]] const APICredentials& credentials() const { return client_.credentials(); }

    /// Reads once more what could not be read. Blocks for a bounded time.
    void readAgain();
    /// Throws CredentialsError, and then changes nothing here, if the secret service refuses.
    void save(const APICredentials& credentials);
    /// Forgets the key; stored reports stay. Throws CredentialsError, and then forgets nothing, if the secret
    /// service refuses.
    void remove();
    /// Tries the credentials with one real request and stores nothing. Absent where they aren't complete.
    [[nodiscard]] QCoro::Task<std::optional<ConnectionTest>> testConnection();

  Q_SIGNALS:
    void hasCredentialsChanged();
    void problemChanged();

  private:
    void take(LoadedCredentials loaded);

    CredentialsKeychain keychain_;
    ASCClient& client_;
    const ReportCalendar& calendar_;
    Worker& worker_;
    const std::stop_token end_;
    std::optional<std::string> problem_;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Account, bool, hasCredentials_, false,
                                         &Account::hasCredentialsChanged)
};

}  // namespace vantrell
