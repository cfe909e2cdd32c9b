#include "data/CredentialsKeychain.h"
#include "secrets/MemorySecretStore.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

constexpr const char* service = "Vantrell.appstoreconnect";
constexpr const char* account = "credentials";
const APICredentials sample{"issuer", "key", "-----BEGIN\n\"pem\"\r\n/+=", "6041"};

TEST(CredentialsKeychain, KeepsFourTextsInOneItemInTheirOrder) {
    MemorySecretStore secrets;
    CredentialsKeychain keychain(secrets);
    keychain.store({"old", "old", "old", "old"});
    keychain.store(sample);
    EXPECT_EQ(keychain.load().credentials, sample);
    EXPECT_EQ(std::get<std::string>(secrets.read(service, account)),
              R"({"issuerID":"issuer","keyID":"key","privateKeyPEM":"-----BEGIN\n\"pem\"\r\n/+=",)"
              R"("vendorNumber":"6041"})");
    keychain.remove();
    EXPECT_EQ(keychain.load().credentials, std::nullopt);
}

TEST(CredentialsKeychain, ReadsADamagedItemAsAbsentWithoutAProblem) {
    for (const char* const item : {R"({"issuerID":"a","keyID":"b","privateKeyPEM":"c"})",
                                   R"({"issuerID":"a","keyID":"b","privateKeyPEM":"c","vendorNumber":6041})",
                                   R"(["a","b","c","d"])", "{", ""}) {
        MemorySecretStore secrets;
        ASSERT_FALSE(secrets.add(service, account, item));
        const LoadedCredentials loaded = CredentialsKeychain(secrets).load();
        EXPECT_EQ(loaded.credentials, std::nullopt) << item;
        EXPECT_EQ(loaded.problem, std::nullopt) << item;
    }
}

TEST(CredentialsKeychain, ThrowsTheServicesWordingOrTheCode) {
    MemorySecretStore secrets;
    for (const auto& [error, text] : {std::pair(SecretError{-25308, "Not allowed."}, "Not allowed."),
                                      {SecretError{-34018, ""}, "Keyring error -34018"}}) {
        secrets.failNextAdd(error);
        std::string told;
        try {
            CredentialsKeychain(secrets).store(sample);
        } catch (const CredentialsError& thrown) {
            told = thrown.what();
        }
        EXPECT_EQ(told, text);
    }
}

}  // namespace
}  // namespace vantrell
