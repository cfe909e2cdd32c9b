#pragma once

#include "screens/ScreenParts.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The small window that says which program and version this is, and copies what a report of a fault needs;
/// open at most once.
class AboutView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

  public:
    explicit AboutView(const ScreenParts& parts, QObject* parent = nullptr)
        : QObject(parent), parts_(parts) {}

    [[nodiscard]] static QString version();
    [[nodiscard]] bool isOpen() const { return isOpen_; }
    /// Where it is open already, it comes to the front.
    Q_INVOKABLE void open();
    Q_INVOKABLE void close();
    /// To the clipboard, for a report of a fault.
    Q_INVOKABLE void copyDiagnostics() const;

  Q_SIGNALS:
    void isOpenChanged();
    void raiseRequested();

  private:
    void setOpen(bool isOpen);

    ScreenParts parts_;
    bool isOpen_ = false;
};

}  // namespace vantrell
