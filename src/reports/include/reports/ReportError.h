#pragma once

#include <stdexcept>

namespace vantrell {

/// Why the body of a report could not be read to its end; `what()` is for the user.
class ReportError final : public std::runtime_error {
  public:
    enum class Reason {
        corruptContainer,  ///< the headers leave no room for a stream
        corruptStream,
        tooLarge,
        tooManyLines,
        lineTooLong,
        tooMuchToKeep,
    };

    explicit ReportError(Reason reason);

    [[nodiscard]] Reason reason() const { return reason_; }

  private:
    Reason reason_;
};

}  // namespace vantrell
