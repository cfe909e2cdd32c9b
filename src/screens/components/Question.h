#pragma once

#include <functional>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What is asked, where it was pressed, before something is done that can't be taken back.
class Question : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString consent READ consent NOTIFY changed)
    Q_PROPERTY(QString otherWay READ otherWay NOTIFY changed)

  public:
    /// One way to go on: the label of its button, and what it does.
    struct Way {
        QString label;
        std::function<void()> go;
    };

    using QObject::QObject;

    /// Empty while nothing is asked.
    [[nodiscard]] QString text() const { return text_; }
    [[nodiscard]] QString consent() const { return consent_.label; }
    /// Empty where there is none.
    [[nodiscard]] QString otherWay() const { return otherWay_.label; }

    /// In place of what was asked before.
    void ask(const QString& text, Way consent, Way otherWay = {});

    Q_INVOKABLE void agree() { end(consent_); }
    Q_INVOKABLE void goOtherWay() { end(otherWay_); }
    Q_INVOKABLE void dismiss() { end({}); }

  Q_SIGNALS:
    void changed();

  private:
    void end(Way chosen);

    QString text_;
    Way consent_;
    Way otherWay_;
};

}  // namespace vantrell
