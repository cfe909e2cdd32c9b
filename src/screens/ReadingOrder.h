#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// Keeps what a list holds in the order from top to bottom, in which screen readers and Tab go through it. A
/// list itself leaves it in the order of its making: the footer first, and rows above those scrolled from
/// last.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* content READ content WRITE setContent NOTIFY contentChanged)

  public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem* content() const { return content_; }
    /// To be set once: the item that moves as the list scrolls.
    void setContent(QQuickItem* content);

  Q_SIGNALS:
    void contentChanged();

  private:
    void sortSoon();
    void sort();

    QPointer<QQuickItem> content_;
    bool isDue_ = false;
};

}  // namespace vantrell
