#pragma once

#include "base/Instant.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace vantrell::testing {

/// The lines of a table beside a test, of so many cells with tabs between them; what follows "# " is a
/// comment. In a cell %0A stands for the byte 0A. A table that isn't like this, or has no line, fails the
/// test.
[[nodiscard]] std::vector<std::vector<std::string>> linesOfCases(const std::filesystem::path& table,
                                                                 std::size_t cells);

/// A time as it stands in a table, such as 2026-11-22T13:00:00Z, and back.
[[nodiscard]] Instant instantOf(const std::string& text);
[[nodiscard]] std::string textOf(Instant instant);

/// Expects of each case that `result`, given all cells but the last, is what the last one says.
template <std::size_t given, typename Result>
void expectCases(const std::filesystem::path& table, Result result) {
    for (const auto& cells : linesOfCases(table, given + 1)) {
        const auto resultOf = [&]<std::size_t... index>(std::index_sequence<index...>) {
            return result(cells[index]...);
        };
        EXPECT_EQ(resultOf(std::make_index_sequence<given>()), cells.back())
            << ::testing::PrintToString(cells);
    }
}

}  // namespace vantrell::testing
