#include "net/QtHttpClient.h"

#include "HttpExchange.h"

#include <utility>

#include <QSslCertificate>
#include <QSslConfiguration>

namespace vantrell {

namespace {

QNetworkRequest blankRequest(std::string_view extraAuthoritiesPEM) {
    QNetworkRequest message;
    message.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    message.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    message.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    message.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    message.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    message.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    // One small request at a time gains nothing from the newer protocol.
    message.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    message.setRawHeader("User-Agent", "Vantrell");
    // On a connection that was kept, a request may meet its end, and nothing is sent twice.
    message.setRawHeader("Connection", "close");
    // Or Qt would send the desktop's, and the wording of answers would depend on it.
    message.setRawHeader("Accept-Language", "en");
    auto security = QSslConfiguration::defaultConfiguration();
    security.addCaCertificates(QSslCertificate::fromData(
        QByteArray(extraAuthoritiesPEM.data(), static_cast<qsizetype>(extraAuthoritiesPEM.size()))));
    message.setSslConfiguration(security);
    return message;
}

}  // namespace

QtHttpClient::QtHttpClient(std::string_view extraAuthoritiesPEM)
    : blank_(blankRequest(extraAuthoritiesPEM)) {}

QtHttpClient::~QtHttpClient() {
    closing_.end();
}

QCoro::Task<HttpResult> QtHttpClient::get(HttpRequest request, std::stop_token cancel) {
    const auto closing = closing_.token();
    if (cancel.stop_requested() || closing.stop_requested()) {
        co_return HttpFailure{HttpFailure::Kind::cancelled};
    }
    // From the first wait on, the client may be gone: all that follows lives in this frame.
    HttpExchange exchange(blank_, std::move(request));
    const auto endEarly = [&exchange] { exchange.end(HttpFailure{HttpFailure::Kind::cancelled}); };
    const std::stop_callback whenCancelled(cancel, endEarly);
    const std::stop_callback whenClosed(closing, endEarly);
    co_return co_await exchange.result();
}

}  // namespace vantrell
