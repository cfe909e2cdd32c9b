#include "base/Lifetime.h"
#include "net/QtHttpClient.h"
#include "testing/Cases.h"
#include "testing/RawServer.h"

#include <deque>

#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using std::chrono::milliseconds;
using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::RawServer;
using testing::sending;
using testing::sendingAndClosing;
using ::testing::SizeIs;

constexpr auto privateQuery = "/v1/salesReports?filter%5BvendorNumber%5D=60419372";

HttpRequest requestTo(const RawServer& server) {
    HttpRequest request;
    request.url = server.url(privateQuery);
    request.idleTimeout = std::chrono::seconds{10};
    return request;
}

HttpResult fetch(const HttpRequest& request) {
    QtHttpClient client;
    return QCoro::waitFor(client.get(request, {}));
}

std::string failureOf(const HttpResult& result) {
    const auto* failure = std::get_if<HttpFailure>(&result);
    return failure ? std::string(storedText(*failure)) : "no failure";
}

RawServer::Answer dripping(const std::string& head, milliseconds pause) {
    return [head, pause](QTcpSocket& socket) {
        sending(head)(socket);
        auto* timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("x"); });
        timer->start(pause);
    };
}

TEST(HttpClient, HandsBackEveryAnswerAsItWasSentOrSaysWhyThereIsNoneWithoutTheAddress) {
    using Text = const std::string&;
    testing::expectCases<2>(VANTRELL_TEST_DATA "/http-answers.tsv", [](Text then, Text sent) {
        RawServer server([&](QTcpSocket& socket) {
            sending(sent)(socket);
            if (then == "closes") {
                socket.disconnectFromHost();
            } else if (then == "resets") {
                socket.abort();
            }
        });
        auto request = requestTo(server);
        request.maxBodyBytes = 6;
        request.maxErrorBodyBytes = 5;
        const auto result = fetch(request);
        EXPECT_THAT(server.requests, SizeIs(1));
        const auto* answer = std::get_if<HttpResponse>(&result);
        return answer ? std::to_string(answer->status.value()) + " " + answer->body : failureOf(result);
    });
    const auto nobodyThere = requestTo(RawServer(sending("")));
    EXPECT_EQ(failureOf(fetch(nobodyThere)), "The server refused the connection.");
}

TEST(HttpClient, DoesNotWaitLongForASilentServer) {
    for (const auto* sent : {"", "HTTP/1.1 200 O", "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nhello"}) {
        RawServer server(sending(sent));
        auto request = requestTo(server);
        request.idleTimeout = milliseconds{60};
        EXPECT_EQ(failureOf(fetch(request)), "The request timed out.") << sent;
    }
}

TEST(HttpClient, BearsASlowServerUntilItHasTakenTooLong) {
    RawServer slow(dripping("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n", milliseconds{60}));
    auto request = requestTo(slow);
    request.idleTimeout = milliseconds{250};
    EXPECT_EQ(fetch(request), HttpResult(HttpResponse{200, "xxxxx"}));

    RawServer endless(dripping("HTTP/1.1 200 OK\r\n\r\n", milliseconds{5}));
    request = requestTo(endless);
    request.totalTimeout = milliseconds{150};
    EXPECT_EQ(failureOf(fetch(request)), "The server took too long to send its answer.");
}

TEST(HttpClient, SendsWhatItIsGivenAndNothingThatItWasToldBefore) {
    RawServer server(
        sending("HTTP/1.1 200 OK\r\nSet-Cookie: id=1\r\nETag: \"1\"\r\nCache-Control: max-age=900\r\n"
                "Content-Length: 5\r\n\r\nhello"));
    auto request = requestTo(server);
    request.headers = {{"Authorization", "Bearer token"}};
    QtHttpClient client;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(QCoro::waitFor(client.get(request, {})), HttpResult(HttpResponse{200, "hello"}));
    }
    EXPECT_THAT(server.requests,
                Each(AllOf(HasSubstr(std::string("GET ") + privateQuery + " HTTP/1.1\r\n"),
                           HasSubstr("\r\nAuthorization: Bearer token\r\n"),
                           HasSubstr("\r\nAccept-Encoding: identity\r\n"), Not(HasSubstr("Cookie")),
                           Not(HasSubstr("If-None-Match")), Not(HasSubstr("gzip, deflate")))));
}

TEST(HttpClient, AsksThroughTheProxyOfTheEnvironmentButNotWhereItIsRuledOut) {
    RawServer proxy(sendingAndClosing("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nvia"));
    qputenv("http_proxy", QByteArray::fromStdString(proxy.url("")));
    qputenv("https_proxy", QByteArray::fromStdString(proxy.url("")));
    qputenv("no_proxy", "direct.test,127.0.0.1");
    HttpRequest request;
    request.url = "http://reports.test/v1";
    EXPECT_EQ(fetch(request), HttpResult(HttpResponse{200, "via"}));
    request.url = "https://reports.test/v1";
    EXPECT_NE(failureOf(fetch(request)), "no failure") << "the proxy answers, but not in TLS";
    RawServer server(sendingAndClosing("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\ndirect"));
    EXPECT_EQ(fetch(requestTo(server)), HttpResult(HttpResponse{200, "direct"}));
    for (const char* name : {"http_proxy", "https_proxy", "no_proxy"}) {
        qunsetenv(name);
    }
    EXPECT_THAT(proxy.requests, ElementsAre(HasSubstr("GET http://reports.test/v1 HTTP"),
                                            HasSubstr("CONNECT reports.test:443 HTTP")));
}

std::string redirect(int status, const std::string& location) {
    return "HTTP/1.1 " + std::to_string(status) + " Moved\r\nLocation: " + location +
           "\r\nContent-Length: 5\r\n\r\nmoved";
}

TEST(HttpClient, FollowsRedirectsButTakesTheTokenToNoOtherHost) {
    std::deque<std::string> answers;
    const auto nextAnswer = [&answers](QTcpSocket& socket) {
        sending(answers.front())(socket);
        answers.pop_front();
    };
    RawServer server(nextAnswer);
    RawServer other(nextAnswer);
    answers = {redirect(301, "/same"), redirect(302, other.url("/other")), redirect(307, "/deeper"),
               redirect(308, server.url("/back")), "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nhere"};
    auto request = requestTo(server);
    request.redirects = Redirects::follow;
    request.headers = {{"authorization", "Bearer token"}, {"X-Plain", "kept"}};
    EXPECT_EQ(fetch(request), HttpResult(HttpResponse{200, "here"}));
    ASSERT_THAT(server.requests, SizeIs(3));
    EXPECT_THAT(server.requests[1],
                AllOf(HasSubstr("GET /same HTTP"), HasSubstr("Bearer token"), HasSubstr("X-Plain: kept")));
    EXPECT_THAT(server.requests[2], AllOf(HasSubstr("GET /back HTTP"), Not(HasSubstr("Bearer"))));
    EXPECT_THAT(other.requests, ElementsAre(HasSubstr("GET /other HTTP"), HasSubstr("GET /deeper HTTP")));
    EXPECT_THAT(other.requests, Each(AllOf(Not(HasSubstr("Bearer")), HasSubstr("X-Plain: kept"))));
}

TEST(HttpClient, GivesUpOnRedirectsThatLeadNowhere) {
    for (const auto* location : {"file:///etc/passwd", "http://", "/again"}) {
        RawServer server(sending(redirect(302, location)));
        auto request = requestTo(server);
        request.redirects = Redirects::follow;
        EXPECT_EQ(failureOf(fetch(request)), "The server redirected to an address that can't be followed.");
        EXPECT_THAT(server.requests, SizeIs(location[0] == '/' ? 21 : 1)) << location;
    }
}

TEST(HttpClient, SendsNothingForARequestThatCannotBeBuilt) {
    RawServer server(sending(""));
    auto request = requestTo(server);
    request.headers = {{"Authorization", "Bearer a\r\nX-Other: b"}};
    EXPECT_EQ(failureOf(fetch(request)), "The request could not be built.");
    EXPECT_THAT(server.requests, IsEmpty());
    for (const auto* url : {"", "https://", "file:///etc/passwd"}) {
        request.url = url;
        EXPECT_EQ(failureOf(fetch(request)), "The request could not be built.") << url;
    }
}

TEST(HttpClient, EndsWhatIsUnderWayAtOnceWhenItIsCancelledOrTheClientDestroyed) {
    for (const bool isCancelled : {true, false}) {
        bool disconnected = false;
        RawServer server([&disconnected](QTcpSocket& socket) {
            sending("HTTP/1.1 200 OK\r\n\r\nhel")(socket);
            QObject::connect(&socket, &QTcpSocket::disconnected, [&disconnected] { disconnected = true; });
        });
        auto client = std::make_unique<QtHttpClient>();
        Lifetime lifetime;
        auto waiting = client->get(requestTo(server), lifetime.token());
        ASSERT_TRUE(QTest::qWaitFor([&server] { return !server.requests.empty(); }, 10'000));
        isCancelled ? lifetime.end() : client.reset();
        ASSERT_TRUE(waiting.isReady());
        EXPECT_EQ(failureOf(QCoro::waitFor(std::move(waiting))), "The request was cancelled.");
        ASSERT_TRUE(QTest::qWaitFor([&disconnected] { return disconnected; }, 10'000));
    }
}

}  // namespace
}  // namespace vantrell
