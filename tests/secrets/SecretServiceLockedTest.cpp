#include "secrets/KeychainSecretStore.h"
#include "testing/Keyring.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

constexpr auto service = "Vantrell.test";
constexpr std::chrono::milliseconds ample{10'000};

TEST(LockedSecretService, IsToldApartFromOneWithoutTheSecret) {
    testing::Keyring keyring;
    KeychainSecretStore keychain{ample, ample};
    ASSERT_EQ(keychain.add(service, "kept", "secret"), std::nullopt);
    keyring.lock();

    const SecretRead locked = SecretUnreadable{"The keyring is locked."};
    EXPECT_EQ(keychain.read(service, "kept"), locked);
    EXPECT_EQ(keychain.read(service, "never written"), locked);

    const auto kept = keychain.remove(service, "kept");
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->description, "The keyring is locked.");

    const auto error = keychain.add(service, "new", "secret");
    ASSERT_TRUE(error);
    EXPECT_NE(error->code, 0);
    EXPECT_EQ(error->description, "Cannot create an item in a locked collection");
}

}  // namespace
}  // namespace vantrell
