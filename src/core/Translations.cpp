#include "core/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace vantrell {
namespace {

bool isInstalled(QTranslator& translator, const QLocale& language, const QString& file,
                 const QString& folder) {
    return translator.load(language, file, QStringLiteral("_"), folder) &&
           QCoreApplication::installTranslator(&translator);
}

}  // namespace

// What is installed last is asked first.
Translations::Translations(const Locale& locale) {
    const QString name = QStringLiteral("vantrell");
    const QString folder = QStringLiteral(":/translations");
    const QLocale language(QString::fromStdString(locale.languageTag()));
    isInstalled(english_, QLocale(QLocale::English), name, folder);
    // Where ours are English, so are those of Qt, which also tell from where to where a line is read.
    if (isInstalled(own_, language, name, folder)) {
        isInstalled(ofQt_, language, QStringLiteral("qtbase"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    }
}

}  // namespace vantrell
