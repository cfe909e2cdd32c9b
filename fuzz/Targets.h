#pragma once

#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

namespace vantrell::fuzz {

/// Ends the program where a promise is broken, so that the input is kept.
inline void require(bool promise) {
    if (!promise) {
        std::abort();
    }
}

/// Reads one input and ends the program where a promise is broken.
using Target = void (*)(const std::string& input);

void salesBody(const std::string& input);
void financeBody(const std::string& input);
void classification(const std::string& input);
void rates(const std::string& input);
void lookup(const std::string& input);
void key(const std::string& input);
void decimal(const std::string& input);
void storeFile(const std::string& input);

/// By the names of their folders in `corpus/`.
inline const std::map<std::string_view, Target> targets{
    {"sales", salesBody}, {"finance", financeBody}, {"classification", classification},
    {"rates", rates},     {"lookup", lookup},       {"key", key},
    {"decimal", decimal}, {"store", storeFile}};

}  // namespace vantrell::fuzz
