#pragma once

#include "figures/Days.h"
#include "screens/BlockList.h"
#include "screens/Screen.h"
#include "screens/components/MoneyValue.h"

#include <string>
#include <vector>

namespace vantrell {

/// What exactly happened on a day: its proceeds and units, and each line of its report.
class DayDetailView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString caption READ caption NOTIFY changed)
    Q_PROPERTY(vantrell::MoneyValue money READ money NOTIFY changed)
    Q_PROPERTY(QString noLinesText READ noLinesText NOTIFY changed)
    Q_PROPERTY(vantrell::BlockList* lines READ lines CONSTANT)

  public:
    /// `dayKey` is what the caller selected and may be any text.
    DayDetailView(const ScreenParts& parts, std::string dayKey, AppFilter apps, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString caption() const { return caption_; }
    [[nodiscard]] const MoneyValue& money() const { return money_; }
    /// What stands in place of the lines; empty if there are some.
    [[nodiscard]] QString noLinesText() const { return noLinesText_; }
    [[nodiscard]] BlockList* lines() { return &lines_; }

  Q_SIGNALS:
    void changed();

  private:
    void refresh() override;
    [[nodiscard]] QString statusText() const;

    const std::string dayKey_;
    const AppFilter apps_;
    QString caption_;
    MoneyValue money_;
    QString noLinesText_;
    SharedSnapshot texts_;  // of the items
    std::vector<SalesRowLite> items_;
    BlockList lines_;
};

}  // namespace vantrell
