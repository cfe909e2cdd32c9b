#include "net/QtHttpClient.h"
#include "secrets/KeychainSecretStore.h"
#include "testing/EngineFixture.h"
#include "testing/Keyring.h"
#include "testing/RawServer.h"

#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sys/mman.h>
#include <unistd.h>

#include <QTest>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

constexpr std::size_t pieceBytes = std::size_t{1} << 20U;

/// A text that is looked for without being in memory itself.
class Needle {
  public:
    explicit Needle(std::string_view text) {
        for (const char letter : text) {
            masked_.push_back(static_cast<char>(letter ^ 1));
        }
    }
    /// Whether it begins at `place`, its bytes `stride` apart.
    [[nodiscard]] bool isAt(const char* place, std::size_t stride) const {
        for (std::size_t index = 0; index < masked_.size(); ++index) {
            if (place[index * stride] != static_cast<char>(masked_[index] ^ 1)) {
                return false;
            }
        }
        return true;
    }
    [[nodiscard]] char first() const { return static_cast<char>(masked_.front() ^ 1); }
    [[nodiscard]] std::size_t size() const { return masked_.size(); }

  private:
    std::string masked_;
};

/// How often the needle lies in what this process can write to, as bytes or as UTF-16.
int timesInMemory(const Needle& needle) {
    const int memory = ::open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    auto* const piece = static_cast<char*>(
        ::mmap(nullptr, 2 * pieceBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    const auto own = reinterpret_cast<std::uintptr_t>(piece);
    int found = 0;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t from = 0;
        std::uintptr_t to = 0;
        char rights[5] = {};
        constexpr std::uintptr_t shadowOfTheSanitizer = std::uintptr_t{1} << 36U;
        if (std::sscanf(line.c_str(), "%lx-%lx %4s", &from, &to, rights) != 3 || rights[1] != 'w' ||
            (own >= from && own < to) || to - from > shadowOfTheSanitizer) {
            continue;
        }
        for (std::uintptr_t at = from; at < to; at += pieceBytes) {
            // What goes over the end of a piece is found with it.
            const auto count = ::pread(memory, piece, pieceBytes + 2 * needle.size(), static_cast<off_t>(at));
            const char* const end = piece + std::min<ssize_t>(count, pieceBytes);
            for (const char* place = piece; count > 0 && place < end; ++place) {
                place = static_cast<const char*>(
                    std::memchr(place, needle.first(), static_cast<std::size_t>(end - place)));
                if (place == nullptr) {
                    break;
                }
                found += needle.isAt(place, 1) || needle.isAt(place, 2) ? 1 : 0;
            }
        }
    }
    ::munmap(piece, 2 * pieceBytes);
    ::close(memory);
    return found;
}

TEST(Secrets, NothingOfKeyAndTokenIsLeftInMemoryOnceTheKeyIsRemoved) {
    testing::Keyring keyring;
    testing::EngineFixture fixture;
    fixture.destroyEngine();
    KeychainSecretStore secrets{std::chrono::seconds(10), std::chrono::seconds(10)};
    auto server = std::make_unique<testing::RawServer>(
        testing::sendingAndClosing("HTTP/1.1 401 No\r\nContent-Length: 0\r\n\r\n"));
    std::optional<Needle> key;
    std::optional<Needle> token;
    {
        APICredentials credentials{"3f7a91c2-5d04", "7QK2MZ8T5W", generateKeyPair().privatePEM, "60419372"};
        key.emplace(std::string_view(credentials.privateKeyPEM).substr(60, 40));
        CredentialsKeychain(secrets).store(credentials);
    }
    QtHttpClient http;
    SyncEngine engine({fixture.context(), http, fixture.clock, fixture.worker, fixture.localTime, secrets,
                       fixture.defaults},
                      {server->url(""), server->url("")});
    const auto test = QCoro::waitFor(engine.account().testConnection());
    EXPECT_TRUE(std::holds_alternative<response::AuthFailure>(test.value().answer));
    const auto bearer = server->requests.at(0).find("Bearer ");
    token.emplace(std::string_view(server->requests.at(0)).substr(bearer + 150, 40));
    server.reset();
    EXPECT_GT(timesInMemory(*key), 0) << "the engine signs with it";
    engine.account().remove();
    QTest::qWait(300);
    EXPECT_EQ(timesInMemory(*key), 0);
    EXPECT_EQ(timesInMemory(*token), 0);
}

}  // namespace
}  // namespace vantrell
