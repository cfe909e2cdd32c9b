#include "HttpExchange.h"

#include "HttpErrors.h"
#include "NetLog.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include <QIODevice>
#include <QNetworkProxyFactory>

namespace vantrell {

namespace {

constexpr int maxHops = 20;
constexpr qint64 readAheadBytes = qint64{256} << 10U;

/// No bytes, and those only once. When a connection breaks before an answer, Qt would by itself send the
/// request again, up to three times; before that it has the body begin anew, and gives up if that can't be.
class SentOnce final : public QIODevice {
  public:
    SentOnce() { open(QIODevice::ReadOnly); }
    [[nodiscard]] qint64 size() const override { return 0; }
    bool reset() override { return false; }

  protected:
    qint64 readData(char* /*data*/, qint64 /*maxSize*/) override { return -1; }
    qint64 writeData(const char* /*data*/, qint64 /*maxSize*/) override { return -1; }
};

/// The variables of the environment and what the desktop is set to.
class SystemProxies final : public QNetworkProxyFactory {
  public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return systemProxyForQuery(query);
    }
};

QByteArray toQt(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// For a diagnostic line.
QString outcomeOf(const HttpResult& result) {
    if (const auto* failure = std::get_if<HttpFailure>(&result)) {
        const std::string_view text = storedText(*failure);
        return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    }
    const auto& answer = std::get<HttpResponse>(result);
    return QStringLiteral("%1, %2 bytes").arg(answer.status.value_or(0)).arg(answer.body.size());
}

bool isWebAddress(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1StringView("https") || url.scheme() == QLatin1StringView("http"));
}

bool isSameOrigin(const QUrl& left, const QUrl& right) {
    const auto port = [](const QUrl& url) {
        return url.port(url.scheme() == QLatin1StringView("https") ? 443 : 80);
    };
    return left.scheme() == right.scheme() && left.host() == right.host() && port(left) == port(right);
}

bool isCredential(const HttpHeader& header) {
    const auto name = toQt(header.name).toLower();
    return name == "authorization" || name == "cookie";
}

/// A line break in a value would start a header of its own.
bool isSendable(const HttpHeader& header) {
    const auto isControl = [](unsigned char c) { return c < 0x20 || c == 0x7F; };
    return !header.name.empty() && std::ranges::none_of(header.name, isControl) &&
           std::ranges::none_of(header.value, isControl);
}

bool isRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

bool mayHaveBody(std::optional<int> status) {
    return status != 204 && status != 304;
}

/// Qt tells an answer of 400 and above as an error too; these are the errors that are no answer.
bool isTransportError(QNetworkReply::NetworkError error) {
    return (error > QNetworkReply::NoError && error < QNetworkReply::ContentAccessDenied) ||
           error == QNetworkReply::ProtocolFailure;
}

}  // namespace

HttpExchange::HttpExchange(const QNetworkRequest& blank, HttpRequest request)
    : blank_(blank),
      request_(std::move(request)),
      url_(QUrl::fromEncoded(toQt(request_.url), QUrl::StrictMode)) {
    if (!isWebAddress(url_) || !std::ranges::all_of(request_.headers, isSendable)) {
        result_ = HttpFailure{HttpFailure::Kind::notBuilt};
        return;
    }
    network_.setProxyFactory(new SystemProxies);  // the manager owns it
    for (auto* timer : {&idle_, &total_, &delivery_}) {
        timer->setSingleShot(true);
    }
    QObject::connect(&idle_, &QTimer::timeout, &context_,
                     [this] { finish(HttpFailure{HttpFailure::Kind::timedOut}); });
    QObject::connect(&total_, &QTimer::timeout, &context_,
                     [this] { finish(HttpFailure{HttpFailure::Kind::tooSlow}); });
    QObject::connect(&delivery_, &QTimer::timeout, &context_, [this] { resume(); });
    total_.start(request_.totalTimeout);
    send();
}

HttpExchange::~HttpExchange() {
    takeReply();
}

void HttpExchange::send() {
    auto message = blank_;
    message.setUrl(url_);
    for (const auto& header : request_.headers) {
        if (!leftOrigin_ || !isCredential(header)) {
            message.setRawHeader(toQt(header.name), toQt(header.value));
        }
    }
    // Named by us, Qt leaves the encoding of the body alone.
    message.setRawHeader("Accept-Encoding", "identity");
    auto body = std::make_unique<SentOnce>();
    reply_ = network_.sendCustomRequest(message, "GET", body.get());
    body.release()->setParent(reply_);
    QObject::connect(reply_, &QNetworkReply::encrypted, &context_, [this] { heard(); });
    QObject::connect(reply_, &QNetworkReply::metaDataChanged, &context_, [this] { takeHeaders(); });
    QObject::connect(reply_, &QNetworkReply::readyRead, &context_, [this] { takeBytes(); });
    QObject::connect(reply_, &QNetworkReply::sslErrors, &context_,
                     [this](const QList<QSslError>& errors) { certificateErrors_ = errors; });
    QObject::connect(reply_, &QNetworkReply::finished, &context_, [this] { conclude(); });
    heard();
}

void HttpExchange::heard() {
    idle_.start(request_.idleTimeout);
}

std::optional<int> HttpExchange::status() const {
    const auto value = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    return value.isValid() ? std::optional(value.toInt()) : std::nullopt;
}

std::size_t HttpExchange::maxBodyBytes() const {
    return status() == 200 ? request_.maxBodyBytes : request_.maxErrorBodyBytes;
}

/// A body that is announced as too large is refused before any of it is read.
void HttpExchange::takeHeaders() {
    heard();
    // Without a bound Qt reads ahead of whoever is busy, by gigabytes if they come. Any earlier it is lost on
    // the thread that reads.
    reply_->setReadBufferSize(readAheadBytes);
    const auto length = reply_->rawHeader("Content-Length");
    bool isNumber = true;
    announcedBytes_ = length.isEmpty() || !mayHaveBody(status()) ? 0 : length.toULongLong(&isNumber);
    if (!isNumber) {
        finish(HttpFailure{HttpFailure::Kind::notUnderstood});
    } else if (announcedBytes_ > maxBodyBytes()) {
        finishTooLarge();
    }
}

void HttpExchange::takeBytes() {
    heard();
    // Qt lets no exception pass.
    try {
        appendBytes();
    } catch (const std::bad_alloc&) {
        finish(HttpFailure{HttpFailure::Kind::noMemory});
    }
}

void HttpExchange::appendBytes() {
    const auto bytes = reply_->readAll();
    const auto count = static_cast<std::size_t>(bytes.size());
    if (count > maxBodyBytes() - body_.size()) {
        finishTooLarge();
        return;
    }
    // By itself it would double, and for a moment take three times what is read.
    if (const std::size_t size = body_.size() + count; size > body_.capacity()) {
        body_.reserve(std::min(std::max(size, body_.size() + body_.size() / 4), maxBodyBytes()));
    }
    body_.append(bytes.constData(), count);
}

/// An error tells its kind by its status, whatever it says.
void HttpExchange::finishTooLarge() {
    const auto code = status();
    if (code == 200 || (code && isRedirect(*code))) {
        finish(HttpFailure{HttpFailure::Kind::tooLarge});
    } else {
        finish(HttpResponse{code, std::move(body_), wantedHeaders()});
    }
}

void HttpExchange::conclude() {
    takeBytes();
    if (result_) {
        return;
    }
    const auto code = status();
    // A status alone says little: a connection that breaks in the body leaves one behind.
    if (!code || isTransportError(reply_->error())) {
        finish(httpFailure(reply_->error(), certificateErrors_));
        return;
    }
    // Qt takes some bodies that are cut short for whole.
    if (body_.size() < announcedBytes_) {
        finish(HttpFailure{HttpFailure::Kind::connectionLost});
        return;
    }
    if (request_.redirects == Redirects::follow && follow(*code)) {
        return;
    }
    finish(HttpResponse{*code, std::move(body_), wantedHeaders()});
}

std::vector<HttpHeader> HttpExchange::wantedHeaders() const {
    std::vector<HttpHeader> headers;
    for (const std::string& name : request_.wantedHeaders) {
        if (const QByteArray wanted = toQt(name); reply_->hasRawHeader(wanted)) {
            headers.push_back({name, reply_->rawHeader(wanted).toStdString()});
        }
    }
    return headers;
}

bool HttpExchange::follow(int status) {
    const auto location = reply_->rawHeader("Location");
    if (!isRedirect(status) || location.isEmpty()) {
        return false;
    }
    const auto next = url_.resolved(QUrl::fromEncoded(location, QUrl::StrictMode));
    const bool lessSafe =
        url_.scheme() == QLatin1StringView("https") && next.scheme() != QLatin1StringView("https");
    if (!isWebAddress(next) || lessSafe || ++hops_ > maxHops) {
        finish(HttpFailure{HttpFailure::Kind::badRedirect});
        return true;
    }
    leftOrigin_ = leftOrigin_ || !isSameOrigin(url_, next);
    url_ = next;
    body_.clear();
    announcedBytes_ = 0;
    takeReply();
    send();
    return true;
}

void HttpExchange::finish(HttpResult result) {
    result_ = std::move(result);
    // A query may hold what only the service should know.
    qCInfo(netLog).noquote() << url_.host() << url_.path() << outcomeOf(*result_);
    idle_.stop();
    total_.stop();
    // Neither an abort nor the waiting code from within a signal of the reply: Qt takes the one badly, and
    // the other may well destroy the client.
    takeReply();
    delivery_.start(0);
}

void HttpExchange::end(HttpFailure failure) {
    result_ = std::move(failure);
    if (auto* reply = takeReply()) {
        reply->abort();
    }
    resume();
}

/// The reply, no longer listened to and soon to be deleted, which ends its connection.
QNetworkReply* HttpExchange::takeReply() {
    if (reply_) {
        reply_->disconnect(&context_);
        reply_->deleteLater();
    }
    return std::exchange(reply_, nullptr);
}

void HttpExchange::resume() {
    if (auto waiting = std::exchange(waiting_, {})) {
        waiting.resume();
    }
}

}  // namespace vantrell
