#include "screens/settings/ExportSettings.h"

#include "platform/AtomicFile.h"
#include "screens/components/ShownText.h"
#include "screens/settings/UserFolder.h"

#include <tuple>
#include <utility>

#include <QFile>
#include <QStandardPaths>

namespace vantrell {

ExportSettings::ExportSettings(const ScreenParts& parts, QObject* parent)
    : QObject(parent), store_(parts.store) {
    writer_.setMaxThreadCount(1);
}

ExportSettings::~ExportSettings() {
    writer_.waitForDone();
}

QStringList ExportSettings::kinds() const {
    QStringList labels;
    for (const ExportKind kind : exportKinds) {
        labels += fromUtf8(exportLabel(kind));
    }
    return labels;
}

void ExportSettings::chooseKind(int place) {
    const bool isKind = place >= 0 && static_cast<std::size_t>(place) < exportKinds.size();
    if (isKind && place != chosenKind()) {
        kind_ = exportKinds.at(static_cast<std::size_t>(place));
        Q_EMIT chosenKindChanged();
    }
}

QString ExportSettings::caption() const {
    return tr(
        "Exports use the display currency for converted columns; the by-currency column is exact. "
        "Days, months and years cover all apps together.");
}

QUrl ExportSettings::prepare() {
    text_ = vantrell::exportText(store_, kind_);
    const QString name = fromUtf8(exportFileName(kind_)) + QLatin1Char('.') + fileSuffix();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QUrl::fromLocalFile(userFolder(documents).filePath(name));
}

void ExportSettings::save(const QUrl& file) {
    if (!file.isLocalFile()) {
        return;
    }
    writer_.start([path = QFile::encodeName(file.toLocalFile()).toStdString(), text = std::move(text_)] {
        std::ignore = writeAtomically(path, text);
    });
}

}  // namespace vantrell
