#include "core/Translations.h"

#include <QCoreApplication>
#include <QLocale>

namespace vantrell {
namespace {

void install(QTranslator& translator, const QLocale& language) {
    if (translator.load(language, QStringLiteral("vantrell"), QStringLiteral("_"),
                        QStringLiteral(":/translations"))) {
        QCoreApplication::installTranslator(&translator);
    }
}

}  // namespace

// What is installed last is asked first.
Translations::Translations(const Locale& locale) {
    install(english_, QLocale(QLocale::English));
    install(own_, QLocale(QString::fromStdString(locale.languageTag())));
}

}  // namespace vantrell
