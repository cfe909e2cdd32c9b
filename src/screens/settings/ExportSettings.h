#pragma once

#include "figures/Exports.h"
#include "screens/ScreenParts.h"

#include <string>

#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What is exported, and the way of its text to a file that the user chooses.
class ExportSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QStringList kinds READ kinds CONSTANT)
    Q_PROPERTY(int chosenKind READ chosenKind NOTIFY chosenKindChanged)
    Q_PROPERTY(bool canExport READ canExport NOTIFY outcomeChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY outcomeChanged)

  public:
    explicit ExportSettings(const ScreenParts& parts, QObject* parent = nullptr);
    /// Waits for the file that is being written.
    ~ExportSettings() override;

    [[nodiscard]] QStringList kinds() const;
    [[nodiscard]] int chosenKind() const { return static_cast<int>(kind_); }
    /// `place` is that of one of `kinds`; others change nothing.
    Q_INVOKABLE void chooseKind(int place);
    /// False while the store is damaged, since a file would lack what can't be read.
    [[nodiscard]] bool canExport() const { return !health_.isDamaged(); }
    /// Why nothing can be exported, or why the last file wasn't written; empty if neither is so.
    [[nodiscard]] QString problem() const;

    /// Takes the text as the figures are now, over all apps. Returns what the file is called unless the user
    /// says otherwise.
    Q_INVOKABLE QUrl prepare();
    /// Writes what was prepared, in place of what was there; `problem` tells if that fails.
    Q_INVOKABLE void save(const QUrl& file);

  Q_SIGNALS:
    void chosenKindChanged();
    void outcomeChanged();

  private:
    void say(const QString& problem);

    const EarningsStore& store_;
    const StoreHealth& health_;
    ExportKind kind_ = ExportKind::days;
    std::string text_;
    QString problem_;
    QThreadPool writer_;
};

}  // namespace vantrell
