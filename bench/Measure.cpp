#include "Measure.h"

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <unistd.h>

namespace vantrell::bench {

void print(const Result& result) {
    constexpr int digits = 3;
    std::cout << R"({"name": ")" << result.name << R"(", "value": )" << std::fixed
              << std::setprecision(digits) << result.value << R"(, "unit": ")" << result.unit
              << R"(", "rows": )" << result.rows << "}" << std::endl;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

std::int64_t residentBytes() {
    std::ifstream statm("/proc/self/statm");
    std::int64_t all = 0;
    std::int64_t resident = 0;
    statm >> all >> resident;
    return resident * ::sysconf(_SC_PAGESIZE);
}

}  // namespace vantrell::bench
