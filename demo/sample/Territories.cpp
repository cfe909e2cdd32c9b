#include "sample/Territories.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace vantrell::sample {

namespace {

constexpr std::array<Territory, 60> storefronts{{
    {"US", "USD", 0, 300}, {"JP", "JPY", 10, 85}, {"GB", "GBP", 20, 90}, {"DE", "EUR", 19, 80},
    {"CN", "CNY", 6, 60},  {"FR", "EUR", 20, 55}, {"CA", "CAD", 0, 45},  {"AU", "AUD", 10, 35},
    {"IT", "EUR", 22, 30}, {"ES", "EUR", 21, 30}, {"KR", "KRW", 10, 30}, {"NL", "EUR", 21, 22},
    {"BR", "BRL", 0, 22},  {"CH", "CHF", 8, 20},  {"IN", "INR", 18, 18}, {"MX", "MXN", 16, 18},
    {"SE", "SEK", 25, 16}, {"AT", "EUR", 20, 14}, {"TR", "TRY", 20, 14}, {"NO", "NOK", 25, 12},
    {"DK", "DKK", 25, 12}, {"PL", "PLN", 23, 12}, {"BE", "EUR", 21, 12}, {"HK", "HKD", 0, 10},
    {"SG", "SGD", 9, 9},   {"IE", "EUR", 23, 8},  {"PT", "EUR", 23, 8},  {"FI", "EUR", 24, 8},
    {"IL", "ILS", 17, 8},  {"AE", "AED", 5, 8},   {"CZ", "CZK", 21, 6},  {"VN", "VND", 10, 6},
    {"HU", "HUF", 27, 5},  {"CL", "CLP", 19, 5},  {"AR", "USD", 0, 5},   {"GR", "EUR", 24, 4},
    {"UA", "USD", 20, 4},  {"KW", "USD", 0, 3},   {"SK", "EUR", 20, 3},  {"SI", "EUR", 22, 2},
    {"LU", "EUR", 17, 2},  {"EE", "EUR", 22, 2},  {"LV", "EUR", 21, 2},  {"LT", "EUR", 21, 2},
    {"OM", "USD", 5, 2},   {"JO", "USD", 0, 2},   {"MA", "USD", 20, 2},  {"EC", "USD", 0, 2},
    {"PA", "USD", 0, 2},   {"CR", "USD", 13, 2},  {"UY", "USD", 22, 2},  {"DO", "USD", 0, 2},
    {"KE", "USD", 16, 2},  {"BH", "USD", 10, 2},  {"LB", "USD", 0, 1},   {"LK", "USD", 0, 1},
    {"GT", "USD", 0, 1},   {"GH", "USD", 15, 1},  {"GE", "USD", 18, 1},  {"AM", "USD", 20, 1},
}};

}  // namespace

std::span<const Territory> territories() {
    return storefronts;
}

std::size_t territoryIndex(std::string_view code) {
    const auto* const found = std::ranges::find(storefronts, code, &Territory::code);
    assert(found != storefronts.end());
    return static_cast<std::size_t>(found - storefronts.begin());
}

}  // namespace vantrell::sample
