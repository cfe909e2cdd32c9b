#include "RawServer.h"
#include "platform/QtHttpClient.h"

#include <deque>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using std::chrono::milliseconds;
using ::testing::AllOf;
using ::testing::Each;
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
    return failure ? failure->description : "no failure";
}

void spinUntil(const std::function<bool()>& happened) {
    const QDeadlineTimer deadline(std::chrono::seconds{10});
    while (!happened() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    ASSERT_TRUE(happened());
}

RawServer::Answer dripping(const std::string& start, const std::string& drop, milliseconds pause, int drops) {
    return [=](QTcpSocket& socket) {
        socket.write(start.data(), static_cast<qint64>(start.size()));
        auto* timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [=, &socket, left = drops]() mutable {
            socket.write(drop.data(), static_cast<qint64>(drop.size()));
            if (--left == 0) {
                timer->stop();
            }
        });
        timer->start(pause);
    };
}

TEST(HttpClient, HandsBackEveryAnswerAsItWasSent) {
    const struct {
        const char* name;
        std::string sent;
        int status;
        std::string body;
    } cases[] = {
        {"with a length", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello", 200, "hello"},
        {"up to the end", "HTTP/1.1 200 OK\r\n\r\nhello", 200, "hello"},
        {"in chunks", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nhel\r\n2\r\nlo\r\n0\r\n\r\n",
         200, "hello"},
        {"packed", "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 4\r\n\r\n\x1f\x8b\x08\x01",
         200, "\x1f\x8b\x08\x01"},
        {"longer than announced", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nhello", 200, "hel"},
        {"no content", "HTTP/1.1 204 No Content\r\nContent-Length: 7\r\n\r\n", 204, ""},
        {"a challenge",
         "HTTP/1.1 401 No\r\nWWW-Authenticate: Basic realm=\"x\"\r\nContent-Length: 5\r\n\r\nhello", 401,
         "hello"},
    };
    for (const auto& [name, sent, status, body] : cases) {
        RawServer server(sendingAndClosing(sent));
        auto request = requestTo(server);
        request.maxBodyBytes = request.maxErrorBodyBytes = 5;
        EXPECT_EQ(fetch(request), HttpResult(HttpResponse{status, body})) << name;
    }
}

TEST(HttpClient, HandsBackEveryStatusWithItsBody) {
    for (const int status : {300, 304, 400, 401, 403, 404, 409, 410, 418, 429, 500, 502, 503, 599}) {
        RawServer server(
            sending("HTTP/1.1 " + std::to_string(status) + " Other\r\nContent-Length: 5\r\n\r\nhello"));
        EXPECT_EQ(fetch(requestTo(server)), HttpResult(HttpResponse{status, status == 304 ? "" : "hello"}));
    }
}

TEST(HttpClient, SaysWhyThereIsNoAnswerWithoutTheAddress) {
    constexpr auto ended = "The server ended the connection before its answer was complete.";
    constexpr auto unclear = "The server's answer could not be understood.";
    constexpr auto tooLarge = "The server's answer is too large.";
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const struct {
        const char* name;
        RawServer::Answer answer;
        const char* words;
    } cases[] = {
        {"closes at once", sendingAndClosing(""), ended},
        {"resets", [](QTcpSocket& socket) { socket.abort(); }, ended},
        {"breaks off in the head", sendingAndClosing(ok + "Content-Le"), ended},
        {"shorter than announced", sendingAndClosing(ok + "Content-Length: 5\r\n\r\nhell"), ended},
        {"another protocol", sendingAndClosing("SSH-2.0-Server_9\r\n"), ended},
        {"no length", sendingAndClosing(ok + "Content-Length: many\r\n\r\nhello"), unclear},
        {"two lengths", sending(ok + "Content-Length: 3\r\nContent-Length: 5\r\n\r\nhello"), unclear},
        {"announced too large", sending(ok + "Content-Length: 6\r\n\r\n"), tooLarge},
        {"too large", sending(ok + "\r\nhello!"), tooLarge},
        {"error too large", sending("HTTP/1.1 500 No\r\n\r\nhell"), tooLarge},
    };
    for (const auto& [name, answer, words] : cases) {
        RawServer server(answer);
        auto request = requestTo(server);
        request.maxBodyBytes = 5;
        request.maxErrorBodyBytes = 3;
        EXPECT_EQ(failureOf(fetch(request)), words) << name;
    }
    const auto nobodyThere = requestTo(RawServer(sending("")));
    EXPECT_EQ(failureOf(fetch(nobodyThere)), "The server refused the connection.");
}

TEST(HttpClient, DoesNotWaitLongForASilentServer) {
    const std::string head = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n";
    for (const auto& sent : {std::string(), head.substr(0, 20), head, head + "hello"}) {
        RawServer server(sending(sent));
        auto request = requestTo(server);
        request.idleTimeout = milliseconds{60};
        EXPECT_EQ(failureOf(fetch(request)), "The request timed out.") << sent;
    }
}

TEST(HttpClient, BearsASlowServerThatIsNeverSilentForLong) {
    RawServer server(dripping("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n", "x", milliseconds{60}, 5));
    auto request = requestTo(server);
    request.idleTimeout = milliseconds{250};
    EXPECT_EQ(fetch(request), HttpResult(HttpResponse{200, "xxxxx"}));
}

TEST(HttpClient, EndsAnAnswerThatDripsForEver) {
    RawServer server(dripping("HTTP/1.1 200 OK\r\n\r\n", "x", milliseconds{5}, 1'000'000));
    auto request = requestTo(server);
    request.totalTimeout = milliseconds{150};
    EXPECT_EQ(failureOf(fetch(request)), "The server took too long to send its answer.");
}

TEST(HttpClient, SendsWhatItIsGivenAndNothingThatItWasToldBefore) {
    RawServer server(
        sending("HTTP/1.1 200 OK\r\nSet-Cookie: id=1\r\nETag: \"1\"\r\nCache-Control: max-age=900\r\n"
                "Content-Length: 5\r\n\r\nhello"));
    auto request = requestTo(server);
    request.headers = {{"Authorization", "Bearer token"}, {"Accept", "application/a-gzip, application/json"}};
    QtHttpClient client;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(QCoro::waitFor(client.get(request, {})), HttpResult(HttpResponse{200, "hello"}));
    }
    EXPECT_THAT(server.requests, SizeIs(2));
    EXPECT_THAT(server.requests,
                Each(AllOf(HasSubstr(std::string("GET ") + privateQuery + " HTTP/1.1\r\n"),
                           HasSubstr("\r\nAuthorization: Bearer token\r\n"),
                           HasSubstr("\r\nAccept: application/a-gzip, application/json\r\n"),
                           HasSubstr("\r\nAccept-Encoding: identity\r\n"), Not(HasSubstr("Cookie")),
                           Not(HasSubstr("If-None-Match")), Not(HasSubstr("gzip, deflate")))));
}

std::string redirect(int status, const std::string& location) {
    return "HTTP/1.1 " + std::to_string(status) + " Moved\r\nLocation: " + location +
           "\r\nContent-Length: 5\r\n\r\nmoved";
}

TEST(HttpClient, SendsNothingElsewhereWhenRedirectsAreRefused) {
    for (const int status : {301, 302, 303, 307, 308}) {
        RawServer other(sending("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"));
        RawServer server(sending(redirect(status, other.url("/taken"))));
        auto request = requestTo(server);
        request.headers = {{"Authorization", "Bearer token"}};
        EXPECT_EQ(fetch(request), HttpResult(HttpResponse{status, "moved"}));
        EXPECT_THAT(server.requests, SizeIs(1)) << status;
        EXPECT_THAT(other.requests, IsEmpty()) << status;
    }
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
    ASSERT_THAT(other.requests, SizeIs(2));
    EXPECT_THAT(other.requests[0], HasSubstr("GET /other HTTP"));
    EXPECT_THAT(other.requests[1], HasSubstr("GET /deeper HTTP"));
    EXPECT_THAT(other.requests, Each(AllOf(Not(HasSubstr("Bearer")), HasSubstr("X-Plain: kept"))));
}

TEST(HttpClient, GivesUpOnRedirectsThatLeadNowhere) {
    const struct {
        const char* name;
        std::string location;
        std::size_t requests;
    } cases[] = {
        {"a file", "file:///etc/passwd", 1},
        {"another protocol", "ftp://127.0.0.1/x", 1},
        {"no host", "http://", 1},
        {"round and round", "/again", 21},
    };
    for (const auto& [name, location, requests] : cases) {
        RawServer server(sending(redirect(302, location)));
        auto request = requestTo(server);
        request.redirects = Redirects::follow;
        EXPECT_EQ(failureOf(fetch(request)), "The server redirected to an address that can't be followed.")
            << name;
        EXPECT_THAT(server.requests, SizeIs(requests)) << name;
    }
}

TEST(HttpClient, SendsNothingForARequestThatCannotBeBuilt) {
    RawServer server(sending(""));
    const struct {
        const char* name;
        std::string url;
        HttpHeader header;
    } cases[] = {
        {"no address", "", {"Accept", "*/*"}},
        {"no host", "https://", {"Accept", "*/*"}},
        {"a file", "file:///etc/passwd", {"Accept", "*/*"}},
        {"another protocol", "ftp://127.0.0.1/", {"Accept", "*/*"}},
        {"a line break in a header", server.url("/"), {"Authorization", "Bearer a\r\nX-Other: b"}},
    };
    for (const auto& [name, url, header] : cases) {
        HttpRequest request;
        request.url = url;
        request.headers = {header};
        EXPECT_EQ(failureOf(fetch(request)), "The request could not be built.") << name;
    }
    EXPECT_THAT(server.requests, IsEmpty());
}

TEST(HttpClient, EndsACancelledRequestAtOnce) {
    bool disconnected = false;
    RawServer server([&disconnected](QTcpSocket& socket) {
        QObject::connect(&socket, &QTcpSocket::disconnected, [&disconnected] { disconnected = true; });
    });
    QtHttpClient client;
    CancelSource source;
    auto waiting = client.get(requestTo(server), source.token());
    spinUntil([&server] { return !server.requests.empty(); });
    source.cancel();
    ASSERT_TRUE(waiting.isReady());
    EXPECT_EQ(failureOf(QCoro::waitFor(std::move(waiting))), "The request was cancelled.");
    spinUntil([&disconnected] { return disconnected; });
    EXPECT_EQ(failureOf(QCoro::waitFor(client.get(requestTo(server), source.token()))),
              "The request was cancelled.");
    EXPECT_THAT(server.requests, SizeIs(1));
}

TEST(HttpClient, EndsWhatIsUnderWayWhenItIsDestroyed) {
    RawServer server(sending("HTTP/1.1 200 OK\r\n\r\nhel"));
    auto client = std::make_unique<QtHttpClient>();
    auto first = client->get(requestTo(server), {});
    auto second = client->get(requestTo(server), {});
    spinUntil([&server] { return server.requests.size() == 2; });
    client.reset();
    ASSERT_TRUE(first.isReady() && second.isReady());
    EXPECT_EQ(failureOf(QCoro::waitFor(std::move(first))), "The request was cancelled.");
    EXPECT_EQ(failureOf(QCoro::waitFor(std::move(second))), "The request was cancelled.");
}

QCoro::Task<> fetchAndDestroy(std::unique_ptr<QtHttpClient>& client, HttpRequest request) {
    const auto result = co_await client->get(request, {});
    client.reset();
    EXPECT_EQ(result, HttpResult(HttpResponse{200, ""}));
}

TEST(HttpClient, MayBeDestroyedByWhoeverTakesAResult) {
    RawServer server(sending("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"));
    auto client = std::make_unique<QtHttpClient>();
    QCoro::waitFor(fetchAndDestroy(client, requestTo(server)));
    EXPECT_EQ(client, nullptr);
}

}  // namespace
}  // namespace vantrell
