#include "Targets.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

// Feeds every file of the corpora to its target, with any compiler.

int main(int argc, char** argv) {
    int inputs = 0;
    for (const auto& [name, target] : vantrell::fuzz::targets) {
        const std::filesystem::path folder = std::filesystem::path(argc > 1 ? argv[1] : "corpus") / name;
        const int before = inputs;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::ifstream file(entry.path(), std::ios::binary);
            target(std::string(std::istreambuf_iterator<char>(file), {}));
            ++inputs;
        }
        if (inputs == before) {
            std::cerr << folder << " is empty\n";
            return 1;
        }
    }
    std::cout << "corpora: " << inputs << " inputs, 0 crashes\n";
    return 0;
}
