#include "screens/settings/ExportSettings.h"

#include "files/AtomicFile.h"
#include "screens/components/ShownText.h"
#include "screens/settings/UserFolder.h"
#include "screens/words/SalesWords.h"

#include <utility>

#include <QFile>
#include <QStandardPaths>

namespace vantrell {

ExportSettings::ExportSettings(const ScreenParts& parts, QObject* parent)
    : QObject(parent), store_(parts.store), health_(parts.context.health()) {
    writer_.setMaxThreadCount(1);
    connect(&health_, &StoreHealth::changed, this, &ExportSettings::outcomeChanged);
}

ExportSettings::~ExportSettings() {
    writer_.waitForDone();
}

QStringList ExportSettings::kinds() const {
    QStringList labels;
    for (const ExportKind kind : exportKinds) {
        labels += exportLabel(kind);
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

QString ExportSettings::problem() const {
    return canExport()
               ? problem_
               : tr("The store is damaged: a file would lack what can't be read, so nothing is exported.");
}

QUrl ExportSettings::prepare() {
    say({});
    text_ = vantrell::exportText(store_, kind_);
    const QString name = fromUtf8(exportFileName(kind_)) + QStringLiteral(".csv");
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QUrl::fromLocalFile(userFolder(documents).filePath(name));
}

void ExportSettings::save(const QUrl& file) {
    if (!canExport()) {
        return;
    }
    if (!file.isLocalFile()) {
        say(tr("Only a file on this computer can be written."));
        return;
    }
    writer_.start(
        [this, path = QFile::encodeName(file.toLocalFile()).toStdString(), text = std::move(text_)] {
            if (const auto problem = writeAtomically(path, text)) {
                const auto tell = [this, words = shownText(*problem, messageCharacters)] {
                    say(tr("Not exported: %1").arg(words));
                };
                QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
            }
        });
}

void ExportSettings::say(const QString& problem) {
    if (problem != problem_) {
        problem_ = problem;
        Q_EMIT outcomeChanged();
    }
}

}  // namespace vantrell
