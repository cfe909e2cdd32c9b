#include "calendar/DayKey.h"
#include "sync/SyncEngine.h"

#include <functional>
#include <utility>
#include <variant>

// The key: read at the start, saved, tried and removed.

namespace vantrell {

void SyncEngine::take(LoadedCredentials loaded) {
    credentialsProblem_ = std::move(loaded.problem);
    if (loaded.credentials) {
        const bool isComplete = loaded.credentials->isComplete();
        client_.setCredentials(*std::move(loaded.credentials));
        hasCredentials_ = isComplete;
    }
}

void SyncEngine::saveCredentials(const APICredentials& credentials) {
    keychain_.store(credentials);
    client_.setCredentials(credentials);
    hasCredentials_ = credentials.isComplete();
}

void SyncEngine::removeCredentials() {
    keychain_.remove();
    client_.setCredentials({});
    hasCredentials_ = false;
}

QCoro::Task<std::string> SyncEngine::testConnection() {
    if (!client_.credentials().isComplete()) {
        co_return "Enter the Issuer ID, Key ID, key file and vendor number first.";
    }
    const auto yesterday = calendar_.dateDaysAgo(1);
    if (!yesterday) {
        co_return "";
    }
    ReportResponse answer =
        co_await client_.fetchSales(ReportFrequency::daily, dayKey(*yesterday), std::nullopt, life_.token());
    // A reasoned answer proves the key good, though there is no report to show.
    const bool accepted = std::holds_alternative<response::NotYetAvailable>(answer) ||
                          std::holds_alternative<response::NoSales>(answer);
    // A body that was received is read beside the window.
    std::function<std::string()> tell = [answer = std::move(answer)] { return diagnosticText(answer); };
    const auto text = co_await worker_.run(std::move(tell), life_.token());
    co_return (accepted ? "Credentials accepted. " : "") + text.value_or("");
}

}  // namespace vantrell
