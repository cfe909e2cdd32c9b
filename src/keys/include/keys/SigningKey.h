#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace vantrell {

struct SigningKeyError {
    std::string description;  ///< the reader's own words; never part of the key
};

/// A private key on the curve P-256. Its memory is wiped when it is destroyed.
class SigningKey {
  public:
    /// Reads an armoured PKCS#8 or SEC1 key. Encrypted keys and other curves are errors.
    [[nodiscard]] static std::variant<SigningKey, SigningKeyError> fromPEM(std::string_view text);
    /// Reads a DER key of the same kinds.
    [[nodiscard]] static std::variant<SigningKey, SigningKeyError> fromDER(std::string_view bytes);

    SigningKey(SigningKey&&) noexcept;
    SigningKey& operator=(SigningKey&&) noexcept;
    ~SigningKey();

    /// ECDSA with SHA-256: r and s, 32 big-endian bytes each. Throws std::runtime_error if the library fails.
    [[nodiscard]] std::array<std::uint8_t, 64> sign(std::string_view message) const;

    /// The public half as an armoured SubjectPublicKeyInfo. Throws as above.
    [[nodiscard]] std::string publicPEM() const;

  private:
    struct Key;
    explicit SigningKey(std::unique_ptr<Key> key);
    std::unique_ptr<Key> key_;
};

}  // namespace vantrell
