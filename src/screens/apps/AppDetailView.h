#pragma once

#include "figures/Products.h"
#include "screens/BlockList.h"
#include "screens/RowList.h"
#include "screens/Screen.h"
#include "screens/charts/DailyProceedsChart.h"
#include "screens/day/DaySheet.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace vantrell {

/// All about one app, whatever the filter says.
class AppDetailView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(vantrell::RowList* tiles READ tiles CONSTANT)
    Q_PROPERTY(vantrell::DailyProceedsChart* chart READ chart CONSTANT)
    Q_PROPERTY(vantrell::BlockList* rows READ rows CONSTANT)
    Q_PROPERTY(vantrell::DaySheet* selectedDay READ selectedDay CONSTANT)

  public:
    AppDetailView(const ScreenParts& parts, std::int64_t appID, QObject* parent = nullptr);

    /// That of the app; empty if the catalog doesn't hold it.
    [[nodiscard]] QString title() const { return title_; }
    [[nodiscard]] RowList* tiles() { return &tiles_; }
    /// The last 30 days.
    [[nodiscard]] DailyProceedsChart* chart() { return &chart_; }
    [[nodiscard]] BlockList* rows() { return &rows_; }
    [[nodiscard]] DaySheet* selectedDay() { return &selectedDay_; }

  Q_SIGNALS:
    void titleChanged();

  private:
    void refresh() override;
    void takeSnapshots();
    void showTitle();
    void showTiles();
    void showRows();

    const std::int64_t appID_;
    const AppFilter apps_;
    std::optional<std::int64_t> loadedRevision_;
    QString title_;
    DaySheet selectedDay_;
    RowList tiles_;
    DailyProceedsChart chart_;
    std::vector<PeriodStat> years_;
    std::vector<PeriodStat> months_;
    std::vector<ProductStat> products_;
    std::vector<CountryStat> countries_;
    BlockList rows_;
};

}  // namespace vantrell
