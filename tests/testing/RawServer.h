#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QTcpServer>
#include <QTcpSocket>

namespace vantrell::testing {

/// A server on 127.0.0.1 that sends whatever bytes a test wants it to, as no real server library would.
class RawServer {
  public:
    /// Called with the connection once the head of a request has arrived.
    using Answer = std::function<void(QTcpSocket&)>;

    /// `server` may be one that encrypts.
    explicit RawServer(Answer answer, std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>());

    [[nodiscard]] std::string url(const std::string& path, const std::string& scheme = "http") const;

    /// The head of every request so far, in order.
    std::vector<std::string> requests;

  private:
    void serve(QTcpSocket& socket);

    std::unique_ptr<QTcpServer> server_;
    Answer answer_;
};

/// Answers that keep the connection open, or close it after the bytes.
[[nodiscard]] RawServer::Answer sending(std::string bytes);
[[nodiscard]] RawServer::Answer sendingAndClosing(std::string bytes);

}  // namespace vantrell::testing
