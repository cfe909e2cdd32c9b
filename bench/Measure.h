#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace vantrell::bench {

/// One line of the output.
struct Result {
    std::string name;
    double value = 0;
    std::string unit;
    std::int64_t rows = 0;  ///< what the figure was measured over
};

/// Writes the result as a JSON object on a line of its own.
void print(const Result& result);

[[nodiscard]] double median(std::vector<double> values);

template <typename Work>
[[nodiscard]] double millisecondsOf(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// The memory of this process that is in use now, in bytes.
[[nodiscard]] std::int64_t residentBytes();

}  // namespace vantrell::bench
