#pragma once

#include <filesystem>
#include <string>

namespace vantrell::testing {

/// What a plain SQLite client answers: a line for each row, its values separated by tabs. It takes no lock
/// and changes nothing. A statement that fails fails the test.
[[nodiscard]] std::string asked(const std::filesystem::path& file, const std::string& sql);

/// Changes a file that nobody else has open.
void changed(const std::filesystem::path& file, const std::string& sql);

}  // namespace vantrell::testing
