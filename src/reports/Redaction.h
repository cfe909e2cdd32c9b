#pragma once

#include "data/APICredentials.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

/// Keeps out of a text from elsewhere what was sent there: a service may echo a token, or a vendor number, in
/// an error that is stored and shown.
class Redaction {
  public:
    Redaction() = default;
    /// What is shorter than eight bytes is too likely to be part of an ordinary word, and stays.
    Redaction(const APICredentials& credentials, std::string_view token);

    /// `text` with "•••" in place of each of them, of each part of the token, and of the beginning of any
    /// that was cut off.
    [[nodiscard]] std::string of(std::string text) const;

  private:
    void add(std::string_view secret);

    std::vector<std::string> secrets_;
};

}  // namespace vantrell
