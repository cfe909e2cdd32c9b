#include "net/QtHttpClient.h"
#include "testing/RawServer.h"
#include "testing/WrittenBy.h"

#include <filesystem>
#include <iterator>
#include <thread>

#include <QDeadlineTimer>
#include <QNetworkProxyFactory>
#include <QSslKey>
#include <QSslServer>

#include <gmock/gmock.h>
#include <openssl/x509v3.h>

namespace vantrell {
namespace {

using testing::RawServer;
using testing::sending;

using Kind = HttpFailure::Kind;
constexpr long day = 24L * 60 * 60;
using Certificate = std::unique_ptr<X509, OpenSslRelease<X509_free>>;

void addExtension(X509* certificate, int kind, const char* value) {
    const std::unique_ptr<X509_EXTENSION, OpenSslRelease<X509_EXTENSION_free>> extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, kind, value));
    X509_add_ext(certificate, extension.get(), -1);
}

/// A certificate with its key. Without an issuer it vouches for itself.
struct Identity {
    /// Valid from `from` to `until` seconds after now.
    Identity(const char* name, const char* alternativeName, const Identity* issuer, long from = -day,
             long until = day)
        : key(EVP_EC_gen("P-256")), certificate(X509_new()) {
        static long serial = 1;
        auto* x509 = certificate.get();
        X509_set_version(x509, X509_VERSION_3);
        ASN1_INTEGER_set(X509_get_serialNumber(x509), serial++);
        X509_gmtime_adj(X509_getm_notBefore(x509), from);
        X509_gmtime_adj(X509_getm_notAfter(x509), until);
        X509_set_pubkey(x509, key.get());
        const auto* text = reinterpret_cast<const unsigned char*>(name);
        X509_NAME_add_entry_by_txt(X509_get_subject_name(x509), "CN", MBSTRING_ASC, text, -1, -1, 0);
        X509_set_issuer_name(x509, X509_get_subject_name(issuer ? issuer->certificate.get() : x509));
        addExtension(x509, NID_basic_constraints, alternativeName ? "CA:FALSE" : "critical,CA:TRUE");
        if (alternativeName) {
            addExtension(x509, NID_subject_alt_name, alternativeName);
        }
        EXPECT_GT(X509_sign(x509, issuer ? issuer->key.get() : key.get(), EVP_sha256()), 0);
    }

    [[nodiscard]] std::string pem() const {
        return testing::writtenBy([this](BIO* bio) { return PEM_write_bio_X509(bio, certificate.get()); });
    }

    [[nodiscard]] std::unique_ptr<QSslServer> server() const {
        auto configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(QSslCertificate(QByteArray::fromStdString(pem())));
        configuration.setPrivateKey(QSslKey(QByteArray::fromStdString(testing::privatePEM(key)), QSsl::Ec));
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(configuration);
        return server;
    }

    OwnedKey key;
    Certificate certificate;
};

std::ptrdiff_t threads() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

class Tls : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        // The one that knows the proxies of the system stays.
        QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(QUrl(QStringLiteral("https://a.test"))));
        threadsBefore = threads();
    }
    /// A client's network thread outlives it for a moment, and what OpenSSL keeps for that thread would count
    /// as leaked if the process ended first.
    static void TearDownTestSuite() {
        for (const QDeadlineTimer deadline(10'000); threads() > threadsBefore && !deadline.hasExpired();) {
            std::this_thread::yield();
        }
    }

    static HttpResult fetch(QtHttpClient& client, const RawServer& server) {
        HttpRequest request;
        request.url = server.url("/v1/salesReports", "https");
        request.headers = {{"Authorization", "Bearer token"}};
        request.redirects = Redirects::follow;
        request.idleTimeout = std::chrono::seconds{10};
        return QCoro::waitFor(client.get(request, {}));
    }

    static inline std::ptrdiff_t threadsBefore = 0;
    const Identity authority{"Trusted Authority", nullptr, nullptr};
    const Identity stranger{"Trusted Authority", nullptr, nullptr};
    const Identity good{"Reports", "IP:127.0.0.1", &authority};
    const RawServer::Answer hello = sending("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello");
    QtHttpClient client{authority.pem()};
};

TEST_F(Tls, OnlyATrustedAuthoritysCertificateIsAccepted) {
    RawServer server(hello, good.server());
    EXPECT_EQ(fetch(client, server), HttpResult(HttpResponse{200, "hello"}));
    QtHttpClient systemsOwn;
    EXPECT_EQ(fetch(systemsOwn, server), HttpResult(HttpFailure{Kind::certificateUntrusted}));
}

TEST_F(Tls, AnyOtherCertificateEndsTheRequestBeforeAnythingIsSent) {
    const auto* here = "IP:127.0.0.1";
    const struct {
        const char* name;
        const Identity identity;
        Kind kind;
    } cases[] = {
        {"another name", {"Reports", "DNS:reports.example", &authority}, Kind::certificateForOtherName},
        {"expired", {"Reports", here, &authority, -2 * day, -day}, Kind::certificateOutOfDate},
        {"foreign authority", {"Reports", here, &stranger}, Kind::certificateUntrusted},
    };
    for (const auto& [name, identity, kind] : cases) {
        RawServer server(hello, identity.server());
        EXPECT_EQ(fetch(client, server), HttpResult(HttpFailure{kind})) << name;
        EXPECT_TRUE(server.requests.empty()) << name;
    }
}

TEST_F(Tls, ARedirectThatGivesUpEncryptionIsNotFollowed) {
    RawServer plain(hello);
    const auto head = "HTTP/1.1 302 Found\r\nLocation: " + plain.url("/") + "\r\nContent-Length: 0\r\n\r\n";
    RawServer server(sending(head), good.server());
    EXPECT_EQ(fetch(client, server), HttpResult(HttpFailure{Kind::badRedirect}));
    EXPECT_TRUE(plain.requests.empty());
}

}  // namespace
}  // namespace vantrell
