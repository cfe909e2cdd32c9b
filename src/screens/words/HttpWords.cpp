#include "screens/words/HttpWords.h"

#include <QCoreApplication>

namespace vantrell {
namespace {

class HttpWords {
    Q_DECLARE_TR_FUNCTIONS(vantrell::HttpWords)
};

}  // namespace

QString failureText(HttpFailure failure) {
    using enum HttpFailure::Kind;
    switch (failure.kind) {
        case cancelled:
            return HttpWords::tr("The request was cancelled.");
        case notBuilt:
            return HttpWords::tr("The request could not be built.");
        case hostNotFound:
            return HttpWords::tr("The server could not be found. Check the connection to the internet.");
        case refused:
            return HttpWords::tr("The server refused the connection.");
        case connectionLost:
            return HttpWords::tr("The server ended the connection before its answer was complete.");
        case timedOut:
            return HttpWords::tr("The request timed out.");
        case tooSlow:
            return HttpWords::tr("The server took too long to send its answer.");
        case noSecureConnection:
            return HttpWords::tr("A secure connection to the server could not be set up.");
        case certificateUntrusted:
            return HttpWords::tr("The server's certificate is not trusted.");
        case certificateForOtherName:
            return HttpWords::tr("The server's certificate is for another name.");
        case certificateOutOfDate:
            return HttpWords::tr("The server's certificate has expired or is not valid yet.");
        case proxyUnreachable:
            return HttpWords::tr("The proxy server could not be reached.");
        case proxyWantsPassword:
            return HttpWords::tr("The proxy server asks for a password.");
        case notUnderstood:
            return HttpWords::tr("The server's answer could not be understood.");
        case badRedirect:
            return HttpWords::tr("The server redirected to an address that can't be followed.");
        case tooLarge:
            return HttpWords::tr("The server's answer is too large.");
        case noMemory:
            return HttpWords::tr("There is not enough memory for the server's answer.");
        case connectionFailed:
            break;
    }
    return HttpWords::tr("The network connection failed.");
}

}  // namespace vantrell
