#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace vantrell {

/// Where the product keeps its files for this user.
struct ProgramFolders {
    std::filesystem::path data;    ///< the store
    std::filesystem::path config;  ///< the settings and the window's place
    std::filesystem::path cache;   ///< what can be fetched again

    static constexpr int firstStore = 1;
    static constexpr const char* storesFolder = "stores";

    /// By the desktop's convention, in which a folder that isn't absolute counts as not named. `home` is the
    /// one of the user's account, for an environment that names none. Absent if there is no home at all. The
    /// names may be any bytes; the folders are not made here.
    [[nodiscard]] static std::optional<ProgramFolders> of(
        const std::function<std::optional<std::string>(const char*)>& environment,
        const std::optional<std::string>& home);
    /// Those of one of the user's other stores, which lie within the first one's.
    [[nodiscard]] ProgramFolders ofStore(int number) const;
    /// As above, for whoever runs this process.
    [[nodiscard]] static std::optional<ProgramFolders> ofUser();
};

}  // namespace vantrell
