#include "testing/RawServer.h"

#include <stdexcept>
#include <utility>

#include <QHostAddress>

namespace vantrell::testing {

RawServer::RawServer(Answer answer, std::unique_ptr<QTcpServer> server)
    : server_(std::move(server)), answer_(std::move(answer)) {
    if (!server_->listen(QHostAddress::LocalHost)) {
        throw std::runtime_error("no port is free on 127.0.0.1");
    }
    QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this] {
        while (auto* socket = server_->nextPendingConnection()) {
            serve(*socket);
        }
    });
}

void RawServer::serve(QTcpSocket& socket) {
    auto head = std::make_shared<std::string>();
    const auto read = [this, &socket, head] {
        head->append(socket.readAll().toStdString());
        if (const auto end = head->find("\r\n\r\n"); end != std::string::npos) {
            requests.push_back(head->substr(0, end + 2));
            head->erase(0, end + 4);
            answer_(socket);
        }
    };
    QObject::connect(&socket, &QTcpSocket::readyRead, server_.get(), read);
    read();
}

std::string RawServer::url(const std::string& path, const std::string& scheme) const {
    return scheme + "://127.0.0.1:" + std::to_string(server_->serverPort()) + path;
}

RawServer::Answer sending(std::string bytes) {
    return [bytes = std::move(bytes)](QTcpSocket& socket) {
        socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
    };
}

RawServer::Answer sendingAndClosing(std::string bytes) {
    return [bytes = std::move(bytes)](QTcpSocket& socket) {
        sending(bytes)(socket);
        socket.disconnectFromHost();
    };
}

}  // namespace vantrell::testing
