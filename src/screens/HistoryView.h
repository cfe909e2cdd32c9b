#pragma once

#include "figures/Periods.h"
#include "figures/Products.h"
#include "screens/BlockList.h"
#include "screens/Screen.h"

#include <vector>

namespace vantrell {

/// The long view: all years, the last months and what every product brought in, for the chosen apps.
class HistoryView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(vantrell::BlockList* rows READ rows CONSTANT)

  public:
    explicit HistoryView(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] BlockList* rows() { return &rows_; }

  private:
    void refresh() override;
    [[nodiscard]] QString excludedYears() const;

    std::vector<PeriodStat> years_;
    std::vector<PeriodStat> months_;
    std::vector<ProductStat> products_;
    BlockList rows_;
};

}  // namespace vantrell
