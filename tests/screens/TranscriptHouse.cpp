#include "TranscriptHouse.h"

#include <QMetaProperty>
#include <QQmlError>
#include <QQmlExpression>

#include <gtest/gtest.h>

namespace vantrell::testing {
namespace {

QString words(const QVariant& value);

/// What there is to see and to hear of a value, or only what is copied of it; flags by their names.
QString wordsOfGadget(const QMetaObject& type, const void* gadget) {
    const int copyText = type.indexOfProperty("copyText");
    QStringList all;
    if (copyText >= 0) {
        all += type.property(copyText).readOnGadget(gadget).toString().split(QLatin1Char('\t'));
    }
    for (int number = 0; number < type.propertyCount(); ++number) {
        const QMetaProperty property = type.property(number);
        const QVariant value = property.readOnGadget(gadget);
        if (value.metaType() == QMetaType::fromType<bool>()) {
            all +=
                value.toBool() ? QStringLiteral("(%1)").arg(QLatin1StringView(property.name())) : QString();
        } else if (copyText < 0) {
            all += words(value);
        }
    }
    all.removeAll(QString());
    return all.join(QStringLiteral(" | "));
}

QString words(const QVariant& value) {
    const QMetaObject* type = value.metaType().metaObject();
    if (value.metaType().flags().testFlag(QMetaType::IsGadget) && type != nullptr) {
        return wordsOfGadget(*type, value.constData());
    }
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(" | "))
                                                    : value.toString();
}

QStringList rowsOf(const QAbstractItemModel& list) {
    constexpr int startsBlock = Qt::UserRole + 2;
    QStringList rows;
    for (int place = 0; place < list.rowCount(); ++place) {
        const QModelIndex index = list.index(place, 0);
        if (index.data(startsBlock).toBool()) {
            rows += QStringLiteral("--");
        }
        rows += words(index.data(Qt::UserRole));
    }
    return rows;
}

/// The texts, numbers and flags of a model by their names.
QStringList propertiesOf(const QObject& object) {
    QStringList lines;
    const QMetaObject& type = *object.metaObject();
    for (int number = QObject::staticMetaObject.propertyCount(); number < type.propertyCount(); ++number) {
        const QString text = words(type.property(number).read(&object));
        if (!text.isEmpty()) {
            lines += QStringLiteral("%1: %2").arg(QLatin1StringView(type.property(number).name()), text);
        }
    }
    return lines;
}

QStringList linesOf(const QVariant& value) {
    if (const QObject* object = value.value<QObject*>()) {
        const auto* list = qobject_cast<const QAbstractItemModel*>(object);
        return list == nullptr ? propertiesOf(*object) : rowsOf(*list);
    }
    if (value.typeId() == QMetaType::QStringList) {
        return value.toStringList();
    }
    return value.isValid() ? QStringList(words(value)) : QStringList();
}

}  // namespace

TranscriptHouse::TranscriptHouse(const AccountFile& account) : fixture_(account.locale) {
    account.storeIn(fixture_);
    context_.setContextObject(&root_);
    context_.setContextProperty(QStringLiteral("test"), this);
}

std::string TranscriptHouse::answer(const QString& expression) {
    QQmlExpression asked(&context_, &root_, expression);
    const QVariant value = asked.evaluate();
    EXPECT_FALSE(asked.hasError()) << asked.error().toString().toStdString();
    std::string lines;
    for (const QString& line : linesOf(value)) {
        lines += "    " + (line.isEmpty() ? "(nothing)" : line.toStdString()) + "\n";
    }
    return lines;
}

void TranscriptHouse::beginRun() {
    fixture_.clock.autoAdvance = false;
    fixture_.tasks().spawn(fixture_.engine().runSync());
    fixture_.takeRequests();
}

void TranscriptHouse::leaveUnsaved(bool isDiskFull) {
    const auto failure = isDiskFull ? StoreFailure::diskFull : StoreFailure::other;
    fixture_.context().health().setUnsaved(StoreError{"words", failure});
}

void TranscriptHouse::damageReport(const QString& frequency, const QString& date) {
    fixture_.context().health().addDamagedReport({frequency.toStdString(), date.toStdString()});
}

void TranscriptHouse::answerTo(const QString& request, int status, const QString& body) {
    fixture_.answers[request.toStdString()] = HttpResponse{status, body.toStdString()};
}

QString TranscriptHouse::requests() {
    const auto requests = fixture_.takeRequests();
    QStringList texts;
    for (const std::string& request : requests) {
        texts += QString::fromStdString(request);
    }
    constexpr int most = 3;
    return texts.size() > most ? QStringLiteral("%1, … %2 in all").arg(texts.front()).arg(texts.size())
                               : texts.join(QStringLiteral(", "));
}

QVariant TranscriptHouse::row(const QAbstractItemModel* list, int place) {
    return list->index(place, 0).data(Qt::UserRole);
}

QStringList TranscriptHouse::bars(const Chart* chart) {
    constexpr const char* inks[] = {"proceeds", "refunds", "series"};
    QStringList columns;
    for (const ChartColumn& column : chart->content().columns) {
        QString text = QString::fromStdString(dayKey(column.start));
        text += column.isFetched ? QString() : QStringLiteral(" not fetched");
        for (const ChartBar& bar : column.bars) {
            text += QStringLiteral("; %1 %2").arg(bar.value).arg(
                QLatin1StringView(inks[static_cast<std::size_t>(bar.ink)]));
        }
        columns += text;
    }
    return columns;
}

}  // namespace vantrell::testing
