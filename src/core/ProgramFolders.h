#pragma once

#include <filesystem>

namespace vantrell {

/// Where the product keeps its files for this user.
struct ProgramFolders {
    std::filesystem::path data;    ///< the store
    std::filesystem::path config;  ///< the settings and the window's place
    std::filesystem::path cache;   ///< what can be fetched again

    /// By the desktop's convention. The folders are not made here.
    [[nodiscard]] static ProgramFolders ofUser();
};

}  // namespace vantrell
