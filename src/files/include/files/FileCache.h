#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// A folder of files by key that stays below a size: what was not used for longest is removed. A file that
/// can't be read or written is as good as none. For one thread at a time.
class FileCache {
  public:
    /// The folder is made by the first write. Files in it that aren't the cache's own are left alone.
    FileCache(std::filesystem::path folder, std::uintmax_t maxBytes);

    /// Counts as a use.
    [[nodiscard]] std::optional<std::string> read(std::string_view key) const;
    void write(std::string_view key, std::string_view bytes);
    void remove(std::string_view key) const;

  private:
    [[nodiscard]] std::filesystem::path fileOf(std::string_view key) const;
    void makeRoom();

    const std::filesystem::path folder_;
    const std::uintmax_t maxBytes_;
    /// At least what the folder holds; absent until it was looked through.
    std::optional<std::uintmax_t> bytes_;
};

}  // namespace vantrell
