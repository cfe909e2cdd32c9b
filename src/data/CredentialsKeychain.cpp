#include "data/CredentialsKeychain.h"

#include "base/Overloaded.h"

#include <array>
#include <string_view>
#include <utility>

#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell {
namespace {

constexpr std::string_view service = "Vantrell.appstoreconnect";
constexpr const char* firstAccount = "credentials";

constexpr std::array<std::pair<const char*, std::string APICredentials::*>, 4> members{
    {{"issuerID", &APICredentials::issuerID},
     {"keyID", &APICredentials::keyID},
     {"privateKeyPEM", &APICredentials::privateKeyPEM},
     {"vendorNumber", &APICredentials::vendorNumber}}};

// Qt writes the members in the order of their names, which is the order of the fields.
std::string json(const APICredentials& credentials) {
    QJsonObject object;
    for (const auto& [name, field] : members) {
        object.insert(QString::fromLatin1(name), QString::fromStdString(credentials.*field));
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

std::optional<APICredentials> parsed(const std::string& text) {
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(text));
    APICredentials credentials;
    for (const auto& [name, field] : members) {
        const QJsonValue value = document.object().value(QString::fromLatin1(name));
        if (!value.isString()) {
            return std::nullopt;
        }
        credentials.*field = value.toString().toStdString();
    }
    return credentials;
}

LoadedCredentials loadedFrom(const SecretRead& read) {
    return std::visit(Overloaded{[](const std::string& secret) {
                                     return LoadedCredentials{parsed(secret), std::nullopt};
                                 },
                                 [](const SecretAbsent&) { return LoadedCredentials{}; },
                                 [](const SecretUnreadable& unreadable) {
                                     return LoadedCredentials{std::nullopt, unreadable.reason};
                                 }},
                      read);
}

}  // namespace

std::string keychainErrorText(const SecretError& error) {
    return error.description.empty() ? "Keyring error " + std::to_string(error.code) : error.description;
}

CredentialsKeychain::CredentialsKeychain(SecretStore& secrets, int store)
    : secrets_(secrets), account_(store == 1 ? firstAccount : firstAccount + ("-" + std::to_string(store))) {}

LoadedCredentials CredentialsKeychain::load() {
    return loadedFrom(secrets_.read(service, account_));
}

void CredentialsKeychain::whenLoadedLate(std::function<void(LoadedCredentials)> tell) {
    secrets_.whenAnsweredLate([tell = std::move(tell)](const SecretRead& read) { tell(loadedFrom(read)); });
}

void CredentialsKeychain::store(const APICredentials& credentials) {
    const std::string item = json(credentials);
    if (const auto error = secrets_.add(service, account_, item)) {
        throw CredentialsError(error->code, keychainErrorText(*error));
    }
}

void CredentialsKeychain::remove() {
    if (const auto error = secrets_.remove(service, account_)) {
        throw CredentialsError(error->code, keychainErrorText(*error));
    }
}

}  // namespace vantrell
