#pragma once

#include <QString>

namespace vantrell {

/// One of our own texts with **bold** and `code`, as markup for an item that shows rich text. All else in
/// it is escaped, so that nothing but these two has an effect.
[[nodiscard]] QString styledText(const QString& text);

/// The same without its marks, for whoever hears it.
[[nodiscard]] QString unmarkedText(QString text);

}  // namespace vantrell
