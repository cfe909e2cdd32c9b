#include "data/LineTexts.h"

namespace vantrell {

TextID LineTexts::intern(std::string_view text) {
    Last& last = last_.at(column_++);
    if (last.text != text) {
        last = {text, dictionary_.intern(text)};
    }
    return last.id;
}

}  // namespace vantrell
