#include "secrets/KeychainSecretStore.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

// Run once on a bus without a secret service, and once without a bus.
TEST(MissingSecretService, IsToldApartFromOneWithoutTheSecret) {
    KeychainSecretStore keychain{std::chrono::seconds{10}, std::chrono::seconds{10}};
    const auto read = keychain.read("Vantrell.test", "kept");
    const auto* unreadable = std::get_if<SecretUnreadable>(&read);
    ASSERT_NE(unreadable, nullptr);
    EXPECT_FALSE(unreadable->reason.empty());

    const auto error = keychain.add("Vantrell.test", "kept", "secret");
    ASSERT_TRUE(error);
    EXPECT_NE(error->code, 0);
    EXPECT_EQ(error->description, unreadable->reason);
    EXPECT_TRUE(keychain.remove("Vantrell.test", "kept"));
}

}  // namespace
}  // namespace vantrell
