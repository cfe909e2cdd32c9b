#pragma once

#include <vector>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The screens, in the order of the sidebar.
class Destination : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("names only")

  public:
    enum Value { dashboard, apps, byDay, history, payouts, settings };
    Q_ENUM(Value)
};

/// One screen in the sidebar.
struct DestinationItem {
    Q_GADGET
    QML_VALUE_TYPE(destinationItem)
    Q_PROPERTY(vantrell::Destination::Value destination MEMBER destination)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)

  public:
    Destination::Value destination = Destination::dashboard;
    QString title;
    QString symbol;
    bool operator==(const DestinationItem&) const = default;
};

[[nodiscard]] std::vector<DestinationItem> destinationItems();

}  // namespace vantrell
