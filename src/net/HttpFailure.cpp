#include "net/HttpFailure.h"

namespace vantrell {

std::string_view storedText(HttpFailure failure) {
    using enum HttpFailure::Kind;
    switch (failure.kind) {
        case cancelled:
            return "The request was cancelled.";
        case notBuilt:
            return "The request could not be built.";
        case hostNotFound:
            return "The server could not be found. Check the connection to the internet.";
        case refused:
            return "The server refused the connection.";
        case connectionLost:
            return "The server ended the connection before its answer was complete.";
        case timedOut:
            return "The request timed out.";
        case tooSlow:
            return "The server took too long to send its answer.";
        case noSecureConnection:
            return "A secure connection to the server could not be set up.";
        case certificateUntrusted:
            return "The server's certificate is not trusted.";
        case certificateForOtherName:
            return "The server's certificate is for another name.";
        case certificateOutOfDate:
            return "The server's certificate has expired or is not valid yet.";
        case proxyUnreachable:
            return "The proxy server could not be reached.";
        case proxyWantsPassword:
            return "The proxy server asks for a password.";
        case notUnderstood:
            return "The server's answer could not be understood.";
        case badRedirect:
            return "The server redirected to an address that can't be followed.";
        case tooLarge:
            return "The server's answer is too large.";
        case noMemory:
            return "There is not enough memory for the server's answer.";
        case connectionFailed:
            break;
    }
    return "The network connection failed.";
}

bool isOfTransport(HttpFailure failure) {
    using enum HttpFailure::Kind;
    switch (failure.kind) {
        case cancelled:
        case notBuilt:
        case badRedirect:
        case tooLarge:
        case noMemory:
            return false;
        default:
            return true;
    }
}

}  // namespace vantrell
