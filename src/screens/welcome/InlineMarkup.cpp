#include "screens/welcome/InlineMarkup.h"

#include <QStringList>

namespace vantrell {
namespace {

constexpr QStringView boldMark = u"**";
constexpr QStringView codeMark = u"`";

// Every second piece between marks lies inside of a pair of them.
QString marked(const QString& text, QStringView mark, const QString& opening, const QString& closing) {
    const QStringList pieces = text.split(mark.toString());
    QString result;
    for (qsizetype place = 0; place < pieces.size(); ++place) {
        const QString& piece = pieces[place];
        const bool isInside = place % 2 == 1 && place + 1 < pieces.size();
        result += isInside ? opening + piece + closing : piece;
    }
    return result;
}

}  // namespace

QString styledText(const QString& text) {
    const QString bold =
        marked(text.toHtmlEscaped(), boldMark, QStringLiteral("<b>"), QStringLiteral("</b>"));
    return marked(bold, codeMark, QStringLiteral("<code style=\"font-family:monospace\">"),
                  QStringLiteral("</code>"));
}

QString unmarkedText(QString text) {
    return text.remove(boldMark.toString()).remove(codeMark.toString());
}

}  // namespace vantrell
