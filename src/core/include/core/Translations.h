#pragma once

#include "locale/Locale.h"

#include <QTranslator>

namespace vantrell {

/// The texts of the user's language while it lives. English is always there, since the sources don't tell a
/// plural; a language of which there is no file stays English.
class Translations {
  public:
    /// The language is that of the locale's texts.
    explicit Translations(const Locale& locale);

  private:
    QTranslator english_;
    QTranslator own_;
    QTranslator ofQt_;  ///< of its dialogs, where they are installed
};

}  // namespace vantrell
