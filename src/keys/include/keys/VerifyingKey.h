#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace vantrell {

/// The public half of a signing key: tells whether a signature is genuine.
class VerifyingKey {
  public:
    /// Reads an armoured SubjectPublicKeyInfo of the curve P-256; absent for anything else.
    [[nodiscard]] static std::optional<VerifyingKey> fromPEM(std::string_view text);

    VerifyingKey(VerifyingKey&&) noexcept;
    VerifyingKey& operator=(VerifyingKey&&) noexcept;
    ~VerifyingKey();

    /// `signature` is r and s as SigningKey gives them; one of another length is not genuine.
    [[nodiscard]] bool verify(std::string_view message, std::span<const std::uint8_t> signature) const;

  private:
    struct Key;
    explicit VerifyingKey(std::unique_ptr<Key> key);
    std::unique_ptr<Key> key_;
};

}  // namespace vantrell
