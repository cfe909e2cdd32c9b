#include "ProgramFolders.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

std::optional<std::string> environmentVariable(const char* name) {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

std::optional<std::string> homeOfAccount() {
    constexpr std::size_t roomForAll = 16384;
    std::vector<char> room(roomForAll);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, room.data(), room.size(), &found) != 0 || found == nullptr) {
        return std::nullopt;
    }
    return std::string(found->pw_dir);
}

std::optional<fs::path> absolute(const std::optional<std::string>& name) {
    const fs::path path(name.value_or(""));
    return path.is_absolute() ? std::optional(path) : std::nullopt;
}

}  // namespace

std::optional<ProgramFolders> ProgramFolders::of(
    const std::function<std::optional<std::string>(const char*)>& environment,
    const std::optional<std::string>& home) {
    const auto ownHome = absolute(environment("HOME"));
    const auto base = ownHome ? ownHome : absolute(home);
    const auto folder = [&](const char* name, const char* usual) -> std::optional<fs::path> {
        const auto named = absolute(environment(name));
        if (!named && !base) {
            return std::nullopt;
        }
        return (named ? *named : *base / usual) / "vantrell";
    };
    auto data = folder("XDG_DATA_HOME", ".local/share");
    auto config = folder("XDG_CONFIG_HOME", ".config");
    auto cache = folder("XDG_CACHE_HOME", ".cache");
    if (!data || !config || !cache) {
        return std::nullopt;
    }
    return ProgramFolders{*std::move(data), *std::move(config), *std::move(cache)};
}

ProgramFolders ProgramFolders::ofStore(int number) const {
    if (number == firstStore) {
        return *this;
    }
    const fs::path folder = fs::path(storesFolder) / std::to_string(number);
    return {data / folder, config / folder, cache / folder};
}

std::optional<ProgramFolders> ProgramFolders::ofUser() {
    return of(environmentVariable, homeOfAccount());
}

}  // namespace vantrell
