#include "trial/SpokenText.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QTextDocumentFragment>

namespace vantrell {
namespace {

QString onOneLine(QString text) {
    for (QChar& letter : text) {
        if (letter == QLatin1Char('\n') || letter == QLatin1Char('\t') || letter == QLatin1Char('\r')) {
            letter = QLatin1Char(' ');
        }
    }
    return text;
}

QString paintedText(const QObject& item) {
    const QString text = item.property("text").toString();
    const bool isMarkup = item.property("textFormat").toInt() == Qt::RichText;
    return isMarkup ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QString shownValue(QAccessibleInterface& item) {
    if (auto* text = item.textInterface(); text != nullptr && text->characterCount() > 0) {
        return text->text(0, text->characterCount());
    }
    if (auto* value = item.valueInterface(); value != nullptr) {
        return value->currentValue().toString();
    }
    if (item.state().checkable) {
        return item.state().checked ? QStringLiteral("on") : QStringLiteral("off");
    }
    const bool isPainted = item.object() != nullptr && item.object()->property("text").isValid();
    return isPainted ? paintedText(*item.object()) : item.text(QAccessible::Value);
}

QString line(QAccessibleInterface& item) {
    const char* role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(item.role());
    return QString::fromLatin1(role) + QLatin1Char('\t') + onOneLine(item.text(QAccessible::Name)) +
           QLatin1Char('\t') + onOneLine(shownValue(item)) + QLatin1Char('\n');
}

void addItem(QAccessibleInterface& item, QString& lines) {
    if (item.state().invisible) {
        return;
    }
    lines += line(item);
    for (int number = 0; number < item.childCount(); ++number) {
        if (QAccessibleInterface* child = item.child(number)) {
            addItem(*child, lines);
        }
    }
}

}  // namespace

std::string spokenText(QQuickWindow& window) {
    QString lines;
    if (QAccessibleInterface* item = QAccessible::queryAccessibleInterface(&window)) {
        addItem(*item, lines);
    }
    return lines.toStdString();
}

}  // namespace vantrell
