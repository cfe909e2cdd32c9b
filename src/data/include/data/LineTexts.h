#pragma once

#include "data/TextDictionary.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace vantrell {

/// Gives the numbers of the texts of one line after another, each line's in the same order. Lines that follow
/// each other share most of their texts, so a text is first compared with its neighbour of the line before.
/// The texts must stay for as long as this.
class LineTexts {
  public:
    explicit LineTexts(TextDictionary& dictionary) : dictionary_(dictionary) {}
    LineTexts(const LineTexts&) = delete;
    LineTexts& operator=(const LineTexts&) = delete;

    void startLine() { column_ = 0; }
    [[nodiscard]] TextID intern(std::string_view text);

  private:
    struct Last {
        std::string_view text;
        TextID id = 0;
    };

    static constexpr std::size_t mostColumns = 16;
    TextDictionary& dictionary_;
    std::array<Last, mostColumns> last_;
    std::size_t column_ = 0;
};

}  // namespace vantrell
