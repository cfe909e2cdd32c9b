#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vantrell {

/// Distinct texts by number. A text keeps its number and its place in memory as long as the pool lives.
class TextPool {
  public:
    TextPool() = default;
    TextPool(const TextPool&) = delete;
    TextPool& operator=(const TextPool&) = delete;

    [[nodiscard]] std::uint32_t intern(std::string_view text) {
        if (const auto known = numbers_.find(text); known != numbers_.end()) {
            return known->second;
        }
        const auto number = static_cast<std::uint32_t>(texts_.size());
        texts_.emplace_back(text);
        numbers_.emplace(texts_.back(), number);
        return number;
    }

    [[nodiscard]] std::string_view text(std::uint32_t number) const { return texts_[number]; }
    [[nodiscard]] std::size_t size() const { return texts_.size(); }

  private:
    std::deque<std::string> texts_;
    std::unordered_map<std::string_view, std::uint32_t> numbers_;
};

}  // namespace vantrell
