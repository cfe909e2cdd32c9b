#pragma once

#include "figures/Periods.h"
#include "figures/Products.h"
#include "screens/BlockList.h"
#include "screens/Screen.h"
#include "screens/history/CoverageStrip.h"

#include <vector>

namespace vantrell {

/// The long view: all years, the last months and what every product brought in, for the chosen apps.
class HistoryView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(vantrell::BlockList* rows READ rows CONSTANT)
    Q_PROPERTY(vantrell::CoverageStrip* strip READ strip CONSTANT)
    Q_PROPERTY(QString coverage READ coverage NOTIFY coverageChanged)
    Q_PROPERTY(bool isWhole READ isWhole NOTIFY coverageChanged)

  public:
    using Screen::Screen;

    [[nodiscard]] BlockList* rows() { return &rows_; }
    [[nodiscard]] CoverageStrip* strip() { return &strip_; }
    /// How much of what the service keeps is stored, whichever apps are chosen.
    [[nodiscard]] QString coverage() const { return coverage_; }
    [[nodiscard]] bool isWhole() const { return isWhole_; }

  Q_SIGNALS:
    void coverageChanged();

  private:
    void refresh() override;
    [[nodiscard]] QString excludedYears() const;

    std::vector<PeriodStat> years_;
    std::vector<PeriodStat> months_;
    std::vector<ProductStat> products_;
    BlockList rows_;
    CoverageStrip strip_{locale()};
    QString coverage_;
    bool isWhole_ = true;
};

}  // namespace vantrell
