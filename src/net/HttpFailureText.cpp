#include "HttpFailureText.h"

#include <algorithm>

namespace vantrell {

namespace {

bool isOutOfDate(const QSslError& error) {
    return error.error() == QSslError::CertificateExpired ||
           error.error() == QSslError::CertificateNotYetValid;
}

bool isForAnotherName(const QSslError& error) {
    return error.error() == QSslError::HostNameMismatch;
}

std::string certificateText(const QList<QSslError>& errors) {
    if (errors.isEmpty()) {
        return "A secure connection to the server could not be set up.";
    }
    // Dates and names in a certificate that nobody vouches for mean nothing, so that doubt comes first.
    const bool vouchedFor = std::ranges::all_of(
        errors, [](const QSslError& error) { return isOutOfDate(error) || isForAnotherName(error); });
    if (!vouchedFor) {
        return "The server's certificate is not trusted.";
    }
    if (std::ranges::any_of(errors, isForAnotherName)) {
        return "The server's certificate is for another name.";
    }
    return "The server's certificate has expired or is not valid yet.";
}

}  // namespace

std::string httpFailureText(QNetworkReply::NetworkError error, const QList<QSslError>& certificateErrors) {
    switch (error) {
        case QNetworkReply::ConnectionRefusedError:
            return "The server refused the connection.";
        case QNetworkReply::RemoteHostClosedError:
        // What the end of a connection becomes when the request may not be sent again.
        case QNetworkReply::ContentReSendError:
            return "The server ended the connection before its answer was complete.";
        case QNetworkReply::HostNotFoundError:
            return "The server could not be found. Check the connection to the internet.";
        case QNetworkReply::TimeoutError:
            return "The request timed out.";
        case QNetworkReply::SslHandshakeFailedError:
            return certificateText(certificateErrors);
        case QNetworkReply::ProxyConnectionRefusedError:
        case QNetworkReply::ProxyConnectionClosedError:
        case QNetworkReply::ProxyNotFoundError:
        case QNetworkReply::ProxyTimeoutError:
        case QNetworkReply::UnknownProxyError:
            return "The proxy server could not be reached.";
        case QNetworkReply::ProxyAuthenticationRequiredError:
            return "The proxy server asks for a password.";
        case QNetworkReply::ProtocolUnknownError:
        case QNetworkReply::ProtocolFailure:
            return "The server's answer could not be understood.";
        default:
            return "The network connection failed.";
    }
}

}  // namespace vantrell
