#pragma once

#include "base/Lifetime.h"
#include "net/HttpClient.h"

#include <string_view>

#include <QNetworkRequest>

namespace vantrell {

/// Fetches with Qt Network: http and https only, without cookies, cache or stored logins, through the proxy
/// that the environment (http_proxy, https_proxy, no_proxy) or the desktop is set to. A request goes out
/// once, on a connection of its own.
///
/// What does not speak HTTP shows as a connection that ended too early. A body in chunks that breaks off may
/// come back as if it were whole, since Qt hides the last chunk: whoever decodes it must find its end.
class QtHttpClient final : public HttpClient {
  public:
    /// The system's certificate authorities are trusted. `extraAuthoritiesPEM`, armoured certificates, is
    /// for tests alone.
    explicit QtHttpClient(std::string_view extraAuthoritiesPEM = {});
    /// Ends every request that is under way with a failure before it returns.
    ~QtHttpClient() override;
    QtHttpClient(const QtHttpClient&) = delete;
    QtHttpClient& operator=(const QtHttpClient&) = delete;

    [[nodiscard]] QCoro::Task<HttpResult> get(HttpRequest request, std::stop_token cancel) override;

  private:
    const QNetworkRequest blank_;
    Lifetime closing_;
};

}  // namespace vantrell
