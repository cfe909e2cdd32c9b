#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vantrell::testing {

/// The bytes of a file; a file that can't be read fails the test and gives the empty text.
[[nodiscard]] std::string fileText(const std::filesystem::path& file);

/// The files with this extension (".tsv") straight in `folder`, by name.
[[nodiscard]] std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder,
                                                         const std::string& extension);

/// Fails with a diff by lines unless `actual` is what stands in the file `expected`. The actual text is then
/// left in the build folder, under golden/, from where it can be copied if it is right.
void expectMatchesFile(const std::string& actual, const std::filesystem::path& expected);

}  // namespace vantrell::testing
