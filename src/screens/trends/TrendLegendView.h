#pragma once

#include "base/TaskScope.h"
#include "figures/Trends.h"
#include "icons/AppIconStore.h"
#include "screens/RowList.h"
#include "screens/charts/SeriesColor.h"

#include <vector>

namespace vantrell {

/// One series of a trend.
struct TrendLegendRow {
    Q_GADGET
    QML_VALUE_TYPE(trendLegendRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(vantrell::SeriesColor color MEMBER color)
    Q_PROPERTY(QString icon MEMBER icon)

  public:
    QString title;
    SeriesColor color;
    QString icon;  ///< the source of the app's picture; empty where none is known
    bool operator==(const TrendLegendRow&) const = default;
};

/// Which colour of a trend is which app.
class TrendLegendView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(vantrell::RowList* rows READ rows CONSTANT)

  public:
    TrendLegendView(TaskScope& tasks, AppIconStore& icons, QObject* parent = nullptr);

    [[nodiscard]] RowList* rows() { return &rows_; }

    /// Looks up the icons of apps that weren't shown before.
    void show(std::vector<TrendLegendItem> items);

  private:
    void refresh();
    void loadIcons();

    TaskScope& tasks_;
    AppIconStore& icons_;
    std::vector<TrendLegendItem> items_;
    std::vector<std::int64_t> apps_;
    RowList rows_;
};

}  // namespace vantrell
