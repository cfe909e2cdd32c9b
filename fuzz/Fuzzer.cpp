#include "Targets.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>

// What libFuzzer calls. It leaves options that begin with two dashes to us.

namespace {

vantrell::fuzz::Target chosen = nullptr;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    constexpr std::string_view option = "--target=";
    for (int index = 1; index < *argc; ++index) {
        const std::string_view argument = (*argv)[index];
        const auto target = vantrell::fuzz::targets.find(argument.substr(argument.find('=') + 1));
        if (argument.starts_with(option) && target != vantrell::fuzz::targets.end()) {
            chosen = target->second;
        }
    }
    if (chosen == nullptr) {
        std::cerr << "--target= takes the name of a folder of fuzz/corpus\n";
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    chosen(std::string(data, data + size));
    return 0;
}
