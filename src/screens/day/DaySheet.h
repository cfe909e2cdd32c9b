#pragma once

#include "screens/day/DayDetailView.h"

#include <memory>
#include <string>

namespace vantrell {

/// The sheet over a screen that shows one selected day, or nothing.
class DaySheet : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(vantrell::DayDetailView* day READ day NOTIFY dayChanged)

  public:
    explicit DaySheet(const ScreenParts& parts, QObject* parent = nullptr);

    /// Null while nothing is selected.
    [[nodiscard]] DayDetailView* day() const { return day_.get(); }

    void open(const std::string& dayKey, const AppFilter& apps);
    Q_INVOKABLE void dismiss();

  Q_SIGNALS:
    void dayChanged();

  private:
    void show(std::unique_ptr<DayDetailView> day);

    ScreenParts parts_;
    std::unique_ptr<DayDetailView> day_;
};

}  // namespace vantrell
