#pragma once

#include "screens/BlockList.h"
#include "screens/Screen.h"
#include "screens/components/DateField.h"
#include "screens/day/DaySheet.h"
#include "screens/trends/TrendChart.h"
#include "screens/trends/TrendLegendView.h"

#include <string>
#include <vector>

namespace vantrell {

/// Earnings over a range of the user's choice by day, week or month, as a chart and as a list.
class ByDayView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(int windowPlace READ windowPlace NOTIFY choiceChanged)
    Q_PROPERTY(int granularityPlace READ granularityPlace NOTIFY choiceChanged)
    Q_PROPERTY(bool isCustom READ isCustom NOTIFY choiceChanged)
    Q_PROPERTY(vantrell::DateField* from READ from CONSTANT)
    Q_PROPERTY(vantrell::DateField* through READ through CONSTANT)
    Q_PROPERTY(vantrell::TrendChart* chart READ chart CONSTANT)
    Q_PROPERTY(bool usesSeriesColors READ usesSeriesColors NOTIFY figuresChanged)
    Q_PROPERTY(vantrell::TrendLegendView* trendLegend READ trendLegend CONSTANT)
    Q_PROPERTY(vantrell::BlockList* rows READ rows CONSTANT)
    Q_PROPERTY(vantrell::DaySheet* selectedDay READ selectedDay CONSTANT)

  public:
    ByDayView(const ScreenParts& parts, AppIconStore& icons, QObject* parent = nullptr);

    [[nodiscard]] int windowPlace() const { return windowPlace_; }
    [[nodiscard]] int granularityPlace() const { return static_cast<int>(granularity_); }
    /// The range is that of the two dates.
    [[nodiscard]] bool isCustom() const;
    [[nodiscard]] DateField* from() { return &from_; }
    [[nodiscard]] DateField* through() { return &through_; }
    [[nodiscard]] TrendChart* chart() { return &chart_; }
    /// Several apps are told apart.
    [[nodiscard]] bool usesSeriesColors() const;
    [[nodiscard]] TrendLegendView* trendLegend() { return &trendLegend_; }
    /// The chart, then the days, weeks or months, newest first.
    [[nodiscard]] BlockList* rows() { return &rows_; }
    [[nodiscard]] DaySheet* selectedDay() { return &selectedDay_; }

    Q_INVOKABLE void selectWindow(int place);
    Q_INVOKABLE void selectGranularity(int place);
    void setCustomStart(CivilDate day);
    void setCustomEnd(CivilDate day);
    Q_INVOKABLE void openDay(const QString& dayKey);

  Q_SIGNALS:
    void choiceChanged();
    void figuresChanged();

  private:
    /// Day keys, both included.
    struct Range {
        std::string from;
        std::string to;
    };

    void refresh() override;
    void refreshDates();
    void refreshRows(const Range& range);
    [[nodiscard]] Range range() const;
    [[nodiscard]] QString listTitle() const;

    int windowPlace_ = 0;
    TrendGranularity granularity_ = TrendGranularity::day;
    CivilDate customStart_;
    CivilDate customEnd_;
    DateField from_;
    DateField through_;
    TrendChart chart_;
    TrendLegendView trendLegend_;
    std::vector<DayTableRow> days_;
    std::vector<PeriodStat> periods_;
    BlockList rows_;
    DaySheet selectedDay_;
};

}  // namespace vantrell
