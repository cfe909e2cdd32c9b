#include "sync/Account.h"

#include "reports/ReportError.h"

#include <functional>
#include <utility>
#include <variant>

namespace vantrell {

Account::Account(SecretStore& secrets, ASCClient& client, const ReportCalendar& calendar, Worker& worker,
                 std::stop_token end, int store)
    : keychain_(secrets, store), client_(client), calendar_(calendar), worker_(worker), end_(std::move(end)) {
    take(keychain_.load());
    keychain_.whenLoadedLate([this](LoadedCredentials loaded) {
        // What was entered meanwhile is newer.
        if (!hasCredentials_) {
            take(std::move(loaded));
            Q_EMIT problemChanged();
        }
    });
}

Account::~Account() {
    keychain_.whenLoadedLate({});
}

void Account::take(LoadedCredentials loaded) {
    problem_ = std::move(loaded.problem);
    if (loaded.credentials) {
        const bool isComplete = loaded.credentials->isComplete();
        client_.setCredentials(*std::move(loaded.credentials));
        hasCredentials_ = isComplete;
    }
}

void Account::readAgain() {
    if (!problem_ || hasCredentials_) {
        return;
    }
    take(keychain_.load());
    if (!problem_) {
        Q_EMIT problemChanged();
    }
}

void Account::save(const APICredentials& credentials) {
    keychain_.store(credentials);
    client_.setCredentials(credentials);
    hasCredentials_ = credentials.isComplete();
}

void Account::remove() {
    keychain_.remove();
    client_.setCredentials({});
    hasCredentials_ = false;
}

QCoro::Task<std::optional<ConnectionTest>> Account::testConnection() {
    if (!client_.credentials().isComplete()) {
        co_return std::nullopt;
    }
    ReportResponse answer =
        co_await client_.fetchSales(ReportFrequency::daily, calendar_.dayKey(1), std::nullopt, end_);
    // A body that was received is read beside the window.
    std::function<ConnectionTest()> read = [answer = std::move(answer)]() -> ConnectionTest {
        const auto* const success = std::get_if<response::Success>(&answer);
        try {
            return success != nullptr ? ConnectionTest{response::Success{}, dataLineCount(success->body)}
                                      : ConnectionTest{answer};
        } catch (const ReportError& error) {
            return {response::Failure{error.what()}};
        }
    };
    co_return co_await worker_.run(std::move(read), end_);
}

}  // namespace vantrell
