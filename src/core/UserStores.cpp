#include "UserStores.h"

#include "data/CredentialsKeychain.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include <QCoreApplication>
#include <QProcess>

namespace vantrell {
namespace {

class StoreWords {
    Q_DECLARE_TR_FUNCTIONS(StoreWords)
};

}  // namespace

UserStores::UserStores(ProgramFolders first, int own, SecretStore& secrets)
    : first_(std::move(first)), own_(own), secrets_(secrets) {}

// Numbers are given without a gap.
std::vector<int> UserStores::others() const {
    std::vector<int> stores{ProgramFolders::firstStore};
    std::error_code ignored;
    while (std::filesystem::exists(first_.ofStore(stores.back() + 1).data, ignored)) {
        stores.push_back(stores.back() + 1);
    }
    std::erase(stores, own_);
    return stores;
}

std::optional<std::string> UserStores::open(int store) {
    return QProcess::startDetached(QCoreApplication::applicationFilePath(),
                                   {QStringLiteral("--store"), QString::number(store)})
               ? std::nullopt
               : std::optional(StoreWords::tr("The program could not be started once more.").toStdString());
}

std::optional<std::string> UserStores::openWith(const APICredentials& key) {
    int last = own_;
    for (const int store : others()) {
        const auto loaded = CredentialsKeychain(secrets_, store).load();
        if (loaded.credentials && loaded.credentials->vendorNumber == key.vendorNumber) {
            return open(store);
        }
        last = std::max(last, store);
    }
    const int store = last + 1;
    try {
        CredentialsKeychain(secrets_, store).store(key);
    } catch (const CredentialsError& error) {
        return StoreWords::tr("Could not save to your desktop's keyring: %1")
            .arg(QString::fromUtf8(error.what()))
            .toStdString();
    }
    std::error_code failure;
    std::filesystem::create_directories(first_.ofStore(store).data, failure);
    return failure ? std::optional(failure.message()) : open(store);
}

}  // namespace vantrell
