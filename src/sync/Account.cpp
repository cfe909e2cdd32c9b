#include "sync/Account.h"

#include "calendar/DayKey.h"

#include <functional>
#include <utility>
#include <variant>

namespace vantrell {

Account::Account(SecretStore& secrets, ASCClient& client, const ReportCalendar& calendar, Worker& worker,
                 std::stop_token end)
    : keychain_(secrets), client_(client), calendar_(calendar), worker_(worker), end_(std::move(end)) {
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

QCoro::Task<std::string> Account::testConnection() {
    if (!client_.credentials().isComplete()) {
        co_return "Enter the Issuer ID, Key ID, key file and vendor number first.";
    }
    const auto yesterday = calendar_.dateDaysAgo(1);
    if (!yesterday) {
        co_return "";
    }
    ReportResponse answer =
        co_await client_.fetchSales(ReportFrequency::daily, dayKey(*yesterday), std::nullopt, end_);
    // A reasoned answer proves the key good, though there is no report to show.
    const bool accepted = std::holds_alternative<response::NotYetAvailable>(answer) ||
                          std::holds_alternative<response::NoSales>(answer);
    // A body that was received is read beside the window.
    std::function<std::string()> tell = [answer = std::move(answer)] { return diagnosticText(answer); };
    const auto text = co_await worker_.run(std::move(tell), end_);
    co_return (accepted ? "Credentials accepted. " : "") + text.value_or("");
}

}  // namespace vantrell
