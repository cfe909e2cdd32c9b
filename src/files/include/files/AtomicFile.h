#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// Who may read a file.
enum class Readers {
    /// Like any document of the user: what the process's mask allows, and in place of another file whoever
    /// could read that.
    asUsual,
    ownerOnly,  ///< nobody else, and nobody else looks into a folder that is made for it
};

/// Writes `bytes` as the whole of `file`, in place of what was there, and makes its folder if need be. The
/// file is the old or the new one at any time, never a part, and the new one is on the disk before it takes
/// the place of the old: a full disk costs the new one only. What is there and is no plain file is refused.
/// Absent on success, else what went wrong, for the user.
[[nodiscard]] std::optional<std::string> writeAtomically(const std::filesystem::path& file,
                                                         std::string_view bytes,
                                                         Readers readers = Readers::asUsual);

}  // namespace vantrell
