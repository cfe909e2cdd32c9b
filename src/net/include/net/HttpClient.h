#pragma once

#include "net/HttpFailure.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <stop_token>
#include <string>
#include <variant>
#include <vector>

#include <qcoro/qcorotask.h>

namespace vantrell {

enum class Redirects {
    refuse,  ///< an answer of 301 to 308 is handed back like any other
    follow,  ///< followed while the scheme does not get less safe
};

struct HttpHeader {
    std::string name;
    std::string value;
    bool operator==(const HttpHeader&) const = default;
};

/// One GET. Bodies are asked for without content encoding and never unpacked.
struct HttpRequest {
    std::string url;
    std::vector<HttpHeader> headers;
    Redirects redirects = Redirects::refuse;
    /// Longest silence that is borne, and longest time for the whole exchange.
    std::chrono::milliseconds idleTimeout{std::chrono::seconds{90}};
    std::chrono::milliseconds totalTimeout{std::chrono::minutes{15}};
    /// Most bytes of a body with status 200, and of any other body. A larger one is a failure, or of an error
    /// cut off.
    std::size_t maxBodyBytes = std::size_t{64} << 20U;
    std::size_t maxErrorBodyBytes = std::size_t{1} << 20U;
    std::vector<std::string> wantedHeaders = {};  ///< by name; others of the answer are dropped
    bool operator==(const HttpRequest&) const = default;
};

struct HttpResponse {
    std::optional<int> status;  ///< absent when what answered does not speak HTTP
    std::string body;
    std::vector<HttpHeader> headers = {};  ///< those that were wanted and are there
    bool operator==(const HttpResponse&) const = default;
};

using HttpResult = std::variant<HttpResponse, HttpFailure>;

/// Fetches over HTTP. Several requests may be under way; each result arrives on the calling thread.
class HttpClient {
  public:
    virtual ~HttpClient() = default;

    /// Never throws. A cancelled request ends at once with a failure.
    [[nodiscard]] virtual QCoro::Task<HttpResult> get(HttpRequest request, std::stop_token cancel) = 0;
};

}  // namespace vantrell
