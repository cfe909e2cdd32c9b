#pragma once

#include <string_view>

namespace vantrell {

/// Why a request has no answer.
struct HttpFailure {
    enum class Kind {
        cancelled,
        notBuilt,
        hostNotFound,
        refused,
        connectionLost,  ///< before the answer was complete
        connectionFailed,
        timedOut,  ///< silence
        tooSlow,   ///< the whole exchange
        noSecureConnection,
        certificateUntrusted,
        certificateForOtherName,
        certificateOutOfDate,
        proxyUnreachable,
        proxyWantsPassword,
        notUnderstood,
        badRedirect,
        tooLarge,
        noMemory,
    };

    Kind kind = Kind::connectionFailed;

    bool operator==(const HttpFailure&) const = default;
};

/// In English, as reports and the log keep it. It never holds the URL.
[[nodiscard]] std::string_view storedText(HttpFailure failure);

/// Whether the server could not be heard, which other requests would meet as well.
[[nodiscard]] bool isOfTransport(HttpFailure failure);

}  // namespace vantrell
