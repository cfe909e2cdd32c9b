#include "HttpErrors.h"

#include <algorithm>

namespace vantrell {

namespace {

using Kind = HttpFailure::Kind;

bool isOutOfDate(const QSslError& error) {
    return error.error() == QSslError::CertificateExpired ||
           error.error() == QSslError::CertificateNotYetValid;
}

bool isForAnotherName(const QSslError& error) {
    return error.error() == QSslError::HostNameMismatch;
}

Kind certificateKind(const QList<QSslError>& errors) {
    if (errors.isEmpty()) {
        return Kind::noSecureConnection;
    }
    // Dates and names in a certificate that nobody vouches for mean nothing, so that doubt comes first.
    const bool vouchedFor = std::ranges::all_of(
        errors, [](const QSslError& error) { return isOutOfDate(error) || isForAnotherName(error); });
    if (!vouchedFor) {
        return Kind::certificateUntrusted;
    }
    return std::ranges::any_of(errors, isForAnotherName) ? Kind::certificateForOtherName
                                                         : Kind::certificateOutOfDate;
}

}  // namespace

HttpFailure httpFailure(QNetworkReply::NetworkError error, const QList<QSslError>& certificateErrors) {
    switch (error) {
        case QNetworkReply::ConnectionRefusedError:
            return {Kind::refused};
        case QNetworkReply::RemoteHostClosedError:
        // What the end of a connection becomes when the request may not be sent again.
        case QNetworkReply::ContentReSendError:
            return {Kind::connectionLost};
        case QNetworkReply::HostNotFoundError:
            return {Kind::hostNotFound};
        case QNetworkReply::TimeoutError:
            return {Kind::timedOut};
        case QNetworkReply::SslHandshakeFailedError:
            return {certificateKind(certificateErrors)};
        case QNetworkReply::ProxyConnectionRefusedError:
        case QNetworkReply::ProxyConnectionClosedError:
        case QNetworkReply::ProxyNotFoundError:
        case QNetworkReply::ProxyTimeoutError:
        case QNetworkReply::UnknownProxyError:
            return {Kind::proxyUnreachable};
        case QNetworkReply::ProxyAuthenticationRequiredError:
            return {Kind::proxyWantsPassword};
        case QNetworkReply::ProtocolUnknownError:
        case QNetworkReply::ProtocolFailure:
            return {Kind::notUnderstood};
        default:
            return {Kind::connectionFailed};
    }
}

}  // namespace vantrell
