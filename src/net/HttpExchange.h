#pragma once

#include "net/HttpClient.h"

#include <coroutine>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>
#include <QSslError>
#include <QTimer>
#include <QUrl>

namespace vantrell {

/// One request from its first byte to its result, over as many hops as its redirects take. Lives in the
/// frame of the coroutine that waits for it.
class HttpExchange {
  public:
    /// `blank` is what every hop is made from.
    HttpExchange(const QNetworkRequest& blank, HttpRequest request);
    ~HttpExchange();
    HttpExchange(const HttpExchange&) = delete;
    HttpExchange& operator=(const HttpExchange&) = delete;

    /// Ends the wait at once, before this returns, and with it perhaps the life of this object.
    void end(HttpFailure failure);

    struct Wait {
        HttpExchange& exchange;
        [[nodiscard]] bool await_ready() const noexcept { return exchange.result_.has_value(); }
        void await_suspend(std::coroutine_handle<> handle) noexcept { exchange.waiting_ = handle; }
        HttpResult await_resume() { return std::move(*exchange.result_); }
    };
    [[nodiscard]] Wait result() { return {*this}; }

  private:
    void send();
    void heard();
    void takeHeaders();
    void takeBytes();
    void appendBytes();
    void finishTooLarge();
    void conclude();
    [[nodiscard]] std::vector<HttpHeader> wantedHeaders() const;
    bool follow(int status);
    [[nodiscard]] std::optional<int> status() const;
    [[nodiscard]] std::size_t maxBodyBytes() const;
    void finish(HttpResult result);
    QNetworkReply* takeReply();
    void resume();

    // Of its own, since one that is kept holds on to connections and with them to the headers that went over
    // them.
    QNetworkAccessManager network_;
    const QNetworkRequest blank_;
    const HttpRequest request_;
    QUrl url_;
    /// Once a hop went elsewhere, credentials stay behind for good, also on the way back.
    bool leftOrigin_ = false;
    int hops_ = 0;
    QNetworkReply* reply_ = nullptr;
    std::string body_;
    std::size_t announcedBytes_ = 0;  ///< 0 if the server did not say
    QList<QSslError> certificateErrors_;
    std::optional<HttpResult> result_;
    std::coroutine_handle<> waiting_;
    // Qt has a limit for silence alone, and no limit for an answer that drips for ever.
    QTimer idle_;
    QTimer total_;
    QTimer delivery_;
    // The last member: no slot reaches an object that is half gone.
    QObject context_;
};

}  // namespace vantrell
