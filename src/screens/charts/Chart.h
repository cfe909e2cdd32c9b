#pragma once

#include "screens/RowList.h"
#include "screens/charts/ChartAnnotation.h"
#include "screens/charts/ChartContent.h"
#include "screens/components/FigureContext.h"

#include <functional>
#include <optional>
#include <string>

#include <QObject>

namespace vantrell {

/// What the charts of bars have in common: columns along time, one of which may be selected, the table that
/// tells the same, and days that can be opened.
class Chart : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("a base")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString summary READ summary NOTIFY contentChanged)
    Q_PROPERTY(int selection READ selection NOTIFY selectionChanged)
    Q_PROPERTY(vantrell::ChartAnnotation annotation READ annotation NOTIFY selectionChanged)
    Q_PROPERTY(vantrell::RowList* amounts READ amounts CONSTANT)
    Q_PROPERTY(bool opensDays READ opensDays NOTIFY contentChanged)
    Q_PROPERTY(vantrell::RowList* table READ table CONSTANT)

  public:
    using OnSelectDay = std::function<void(const std::string& dayKey)>;

    [[nodiscard]] QString title() const { return title_; }
    /// What the chart shows as a whole, for those who can't see it.
    [[nodiscard]] QString summary() const;
    [[nodiscard]] const ChartContent& content() const { return content_; }
    /// The place of a column, or -1.
    [[nodiscard]] int selection() const { return selection_; }
    [[nodiscard]] const ChartAnnotation& annotation() const { return annotation_; }
    /// Those of the annotation.
    [[nodiscard]] RowList* amounts() { return &amounts_; }
    [[nodiscard]] virtual bool opensDays() const { return onSelectDay_ != nullptr; }
    /// Newest first; up to date after `fillTable` until the content changes.
    [[nodiscard]] RowList* table() { return &table_; }

    /// Without it opening a day does nothing.
    void setOnSelectDay(OnSelectDay onSelectDay) { onSelectDay_ = std::move(onSelectDay); }

    /// Any other number than that of a column clears the selection.
    Q_INVOKABLE void select(int column);
    Q_INVOKABLE void clearSelection() { select(-1); }
    /// Moves the selection, to the past if negative, and begins with the newest column.
    Q_INVOKABLE void moveSelection(int columns);
    Q_INVOKABLE void selectOldest() { select(0); }
    Q_INVOKABLE void selectNewest() { select(count() - 1); }
    Q_INVOKABLE void open(int column);
    Q_INVOKABLE void fillTable();

  Q_SIGNALS:
    void contentChanged();
    void selectionChanged();

  protected:
    Chart(const FigureContext& context, QString title, QObject* parent);

    /// What moved in one column.
    struct Sums {
        double proceeds = 0;
        double refunds = 0;
    };

    [[nodiscard]] virtual ChartAnnotation annotationOf(std::size_t column) const = 0;
    [[nodiscard]] virtual Sums sumsOf(std::size_t column) const = 0;
    void showColumns(std::vector<ChartColumn> columns, TrendGranularity granularity);

    [[nodiscard]] const FigureContext& context() const { return context_; }
    [[nodiscard]] ChartAmount chartAmount(double value, const QString& title = {}) const;
    /// The line that tells of refunds below 0, and none otherwise.
    [[nodiscard]] std::vector<ChartAmount> refundLine(double refunds) const;

  private:
    void setSelection(int column);
    [[nodiscard]] int count() const { return static_cast<int>(content_.columns.size()); }
    [[nodiscard]] bool isColumn(int column) const { return column >= 0 && column < count(); }
    [[nodiscard]] ChartTableRow tableRow(std::size_t column) const;

    FigureContext context_;
    QString title_;
    OnSelectDay onSelectDay_;
    ChartContent content_;
    int selection_ = -1;
    ChartAnnotation annotation_;
    RowList amounts_;
    RowList table_;
};

}  // namespace vantrell
