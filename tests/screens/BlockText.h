#pragma once

#include "screens/BlockList.h"
#include "screens/components/ColumnTitles.h"
#include "testing/Golden.h"

#include <string>

#include <QMetaProperty>

namespace vantrell::testing {

/// What a row shows, its texts between bars.
inline std::string text(const QVariant& value) {
    QString text = value.toString();
    const QMetaObject* gadget = value.metaType().metaObject();
    const int copyText = gadget == nullptr ? -1 : gadget->indexOfProperty("copyText");
    if (copyText >= 0) {
        text = gadget->property(copyText).readOnGadget(value.constData()).toString();
    } else if (value.canConvert<ColumnTitles>()) {
        const auto titles = value.value<ColumnTitles>();
        text = (QStringList{titles.name} + titles.columns).join(QLatin1Char('\t'));
    }
    return text.replace(QLatin1Char('\t'), QStringLiteral(" | ")).toStdString();
}

/// The rows line by line, each block after a line of its own.
inline std::string text(const BlockList& rows) {
    std::string all;
    for (const BlockRow& row : rows.rows()) {
        all += (row.startsBlock ? "\n" : "") + text(row.value()) + "\n";
    }
    return all;
}

/// Fails unless the rows are shown as in that file of this folder.
inline void expectShown(const BlockList& rows, const char* file) {
    expectMatchesFile(text(rows), std::filesystem::path(VANTRELL_TEST_DATA) / file);
}

}  // namespace vantrell::testing
