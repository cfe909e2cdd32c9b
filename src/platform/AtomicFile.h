#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// Writes `bytes` as the whole of `file`, in place of what was there, and makes its folder if need be. The
/// file is the old or the new one at any time, never a part. Absent on success, else what went wrong, for the
/// user.
[[nodiscard]] std::optional<std::string> writeAtomically(const std::filesystem::path& file,
                                                         std::string_view bytes);

}  // namespace vantrell
