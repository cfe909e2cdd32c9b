#include "Redaction.h"

#include "base/Whitespace.h"

#include <algorithm>

namespace vantrell {
namespace {

constexpr std::size_t leastBytes = 8;
/// As much of the beginning as tells a secret from anything else.
constexpr std::size_t tellingBytes = 16;
constexpr std::string_view mask = "•••";

std::size_t sharedLength(std::string_view left, std::string_view right) {
    const auto end = std::ranges::mismatch(left, right).in1;
    return static_cast<std::size_t>(end - left.begin());
}

void hide(std::string_view secret, std::string& text) {
    const auto head = secret.substr(0, tellingBytes);
    for (auto at = text.find(head); at != std::string::npos; at = text.find(head, at + mask.size())) {
        text.replace(at, sharedLength(std::string_view(text).substr(at), secret), mask);
    }
}

}  // namespace

Redaction::Redaction(const APICredentials& credentials, std::string_view token) {
    add(token);
    while (!token.empty()) {
        const auto part = token.substr(0, token.find('.'));
        add(part);
        token.remove_prefix(std::min(part.size() + 1, token.size()));
    }
    for (const auto& id : {credentials.issuerID, credentials.keyID, credentials.vendorNumber}) {
        add(id);
    }
    for (const std::string_view line : splitAtNewlines(credentials.privateKeyPEM)) {
        if (!line.starts_with("-----")) {
            add(line);
        }
    }
}

void Redaction::add(std::string_view secret) {
    if (secret.size() >= leastBytes) {
        secrets_.emplace_back(secret);
    }
}

std::string Redaction::of(std::string text) const {
    for (const std::string& secret : secrets_) {
        hide(secret, text);
    }
    return text;
}

}  // namespace vantrell
