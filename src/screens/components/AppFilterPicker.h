#pragma once

#include "figures/EarningsStore.h"
#include "screens/RowList.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// One app of the filter's menu.
struct AppFilterItem {
    Q_GADGET
    QML_VALUE_TYPE(appFilterItem)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool isOn MEMBER isOn)

  public:
    QString title;
    bool isOn = false;
    bool operator==(const AppFilterItem&) const = default;
};

/// The menu that says which apps all screens cover.
class AppFilterPicker : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(bool isAllOn READ isAllOn NOTIFY changed)
    Q_PROPERTY(vantrell::RowList* items READ items CONSTANT)

  public:
    /// The store and the locale must outlive the picker.
    AppFilterPicker(EarningsStore& store, const Locale& locale, QObject* parent = nullptr);

    /// "All Apps", "No Apps", the one app's title, or how many.
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool isAllOn() const { return !store_.appFilter().has_value(); }
    /// The apps of the catalog, in its order.
    [[nodiscard]] RowList* items() { return &items_; }

    Q_INVOKABLE void setAllOn(bool isOn);
    /// `place` is that of an item; others change nothing.
    Q_INVOKABLE void setOn(int place, bool isOn);

  Q_SIGNALS:
    void changed();

  private:
    void refresh();
    [[nodiscard]] std::set<std::int64_t> allApps() const;

    EarningsStore& store_;
    const Locale& locale_;
    RowList items_;
};

}  // namespace vantrell
