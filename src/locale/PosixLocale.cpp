#include "PosixLocale.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include <unicode/uloc.h>

namespace vantrell {
namespace {

bool isListed(const char* const* list, std::string_view code) {
    for (; *list != nullptr; ++list) {
        if (code == *list) {
            return true;
        }
    }
    return false;
}

/// Cuts `text` before the first `mark` and gives what stood behind it.
std::string_view takeBehind(std::string_view& text, char mark) {
    const auto found = text.find(mark);
    const auto behind = found == std::string_view::npos ? std::string_view() : text.substr(found + 1);
    text = text.substr(0, found);
    return behind;
}

std::string_view scriptOf(std::string_view modifier) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 3> scripts{
        {{"latin", "_Latn"}, {"cyrillic", "_Cyrl"}, {"devanagari", "_Deva"}}};
    const auto* const known =
        std::ranges::find(scripts, modifier, [](const auto& script) { return script.first; });
    return known == scripts.end() ? std::string_view() : known->second;
}

/// "@currency=CODE" if that is what the modifier asks for.
std::string currencyOf(std::string_view modifier) {
    constexpr std::string_view key = "currency=";
    const auto code = modifier.starts_with(key) ? modifier.substr(key.size()) : std::string_view();
    const bool isCode =
        code.size() == 3 && std::ranges::all_of(code, [](char c) { return c >= 'A' && c <= 'Z'; });
    return isCode ? "@" + std::string(modifier) : std::string();
}

}  // namespace

icu::Locale icuLocale(std::string_view posixName) {
    const auto modifier = takeBehind(posixName, '@');
    takeBehind(posixName, '.');
    const auto region = takeBehind(posixName, '_');
    if (!isListed(uloc_getISOLanguages(), posixName)) {
        return icu::Locale("en");
    }
    std::string name(posixName);
    name += scriptOf(modifier);
    if (isListed(uloc_getISOCountries(), region)) {
        name.append("_").append(region);
    }
    return icu::Locale((name + currencyOf(modifier)).c_str());
}

}  // namespace vantrell
