#pragma once

#include "data/TextDictionary.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace vantrell {

/// Gives the numbers of the texts of one line after another. Lines that follow each other share most of their
/// texts, so a text is first compared with that of the same column of the line before. The texts must stay
/// for as long as this.
template <std::size_t columns>
class LineTexts {
  public:
    explicit LineTexts(TextDictionary& dictionary) : dictionary_(dictionary) {}
    LineTexts(const LineTexts&) = delete;
    LineTexts& operator=(const LineTexts&) = delete;

    template <std::size_t column>
    [[nodiscard]] TextID intern(std::string_view text) {
        auto& [before, id] = std::get<column>(last_);
        if (before != text) {
            before = text;
            id = dictionary_.intern(text);
        }
        return id;
    }

  private:
    struct Last {
        std::string_view text;
        TextID id = 0;
    };

    TextDictionary& dictionary_;
    std::array<Last, columns> last_;
};

}  // namespace vantrell
