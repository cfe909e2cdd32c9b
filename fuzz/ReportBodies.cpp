#include "Require.h"
#include "reports/Gunzip.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t cap = 1U << 16U;
    const std::string body(data, data + size);
    try {
        const std::string plain = vantrell::gunzipIfNeeded(body, cap);
        vantrell::require(plain == body || plain.size() <= cap);
    } catch (const vantrell::GunzipError&) {
        vantrell::require(body.starts_with("\x1F\x8B\x08"));
    }
    return 0;
}
