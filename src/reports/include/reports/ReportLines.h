#pragma once

#include <cstddef>
#include <iterator>
#include <string_view>
#include <vector>

namespace vantrell {

/// The lines of a text, found one after another while they are walked through. A line ends at a line feed and
/// loses one carriage return at its end; a text that ends in a line feed has an empty last line. Nothing is
/// copied, so the text must stay.
class ReportLines {
  public:
    class Iterator {
      public:
        using value_type = std::string_view;
        using difference_type = std::ptrdiff_t;

        explicit Iterator(std::string_view text) : rest_(text) { ++*this; }
        [[nodiscard]] std::string_view operator*() const { return line_; }
        /// What stands behind the line.
        [[nodiscard]] std::string_view rest() const { return lastTaken_ ? std::string_view() : rest_; }
        Iterator& operator++();
        void operator++(int) { ++*this; }
        [[nodiscard]] bool operator==(std::default_sentinel_t /*end*/) const { return atEnd_; }

      private:
        std::string_view rest_;
        std::string_view line_;
        bool lastTaken_ = false;
        bool atEnd_ = false;
    };

    explicit ReportLines(std::string_view text) : text_(text) {}
    [[nodiscard]] Iterator begin() const { return Iterator(text_); }
    [[nodiscard]] std::default_sentinel_t end() const { return {}; }

  private:
    std::string_view text_;
};

[[nodiscard]] inline ReportLines reportLines(std::string_view text) {
    return ReportLines(text);
}

// Far above any report's, and little enough that what is kept of a line can be a part of it.
inline constexpr std::size_t mostLineBytes = std::size_t{256} << 10U;

using Cells = std::vector<std::string_view>;

/// Replaces `cells` by the first `most` pieces of `line` between tabs, empty ones included. There is no
/// quoting.
void splitCells(std::string_view line, std::size_t most, Cells& cells);

}  // namespace vantrell
