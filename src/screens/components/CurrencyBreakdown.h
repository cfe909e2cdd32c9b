#pragma once

#include "screens/RowList.h"
#include "screens/Screen.h"
#include "screens/components/CurrencyBreakdownList.h"

namespace vantrell {

/// The popover on a figure: each of its currencies exactly. One serves the whole window, since one is open at
/// a time.
class CurrencyBreakdown : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(vantrell::RowList* rows READ rows CONSTANT)
    Q_PROPERTY(QString footer READ footer NOTIFY footerChanged)

  public:
    explicit CurrencyBreakdown(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] RowList* rows() { return &rows_; }
    /// How old the rates are; empty before any were fetched.
    [[nodiscard]] QString footer() const { return footer_; }

    Q_INVOKABLE void open(const vantrell::MoneyValue& figure);

  Q_SIGNALS:
    void footerChanged();

  private:
    void refresh() override;
    [[nodiscard]] QString footerText() const;

    AmountsByCurrency byCurrency_;
    RowList rows_;
    QString footer_;
};

}  // namespace vantrell
