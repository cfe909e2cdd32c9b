#include "secrets/MemorySecretStore.h"

namespace vantrell {

SecretRead MemorySecretStore::read(std::string_view service, std::string_view account) {
    if (unreadable_) {
        return SecretUnreadable{*unreadable_};
    }
    const auto found = secrets_.find({std::string(service), std::string(account)});
    if (found == secrets_.end()) {
        return SecretAbsent{};
    }
    return found->second;
}

std::optional<SecretError> MemorySecretStore::add(std::string_view service, std::string_view account,
                                                  std::string_view secret) {
    if (nextAddError_) {
        return std::exchange(nextAddError_, std::nullopt);
    }
    secrets_.insert_or_assign({std::string(service), std::string(account)}, std::string(secret));
    return std::nullopt;
}

std::optional<SecretError> MemorySecretStore::remove(std::string_view service, std::string_view account) {
    if (unreadable_) {
        return SecretError{.description = *unreadable_};
    }
    secrets_.erase({std::string(service), std::string(account)});
    return std::nullopt;
}

}  // namespace vantrell
