#pragma once

#include "screens/RowList.h"
#include "screens/Screen.h"
#include "screens/components/EmptyState.h"
#include "screens/payouts/PayoutRow.h"

#include <set>
#include <string>
#include <vector>

namespace vantrell {

/// What was actually paid, by fiscal period.
class PayoutsView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(vantrell::EmptyState emptyState READ emptyState NOTIFY changed)
    Q_PROPERTY(QString since READ since NOTIFY changed)
    Q_PROPERTY(vantrell::RowList* rows READ rows CONSTANT)
    Q_PROPERTY(bool canRefetch READ canRefetch NOTIFY canRefetchChanged)

  public:
    explicit PayoutsView(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] bool isEmpty() const { return labels_.empty(); }
    [[nodiscard]] EmptyState emptyState() const;
    /// Since when they go back; empty where that isn't known.
    [[nodiscard]] QString since() const { return since_; }
    /// Newest first.
    [[nodiscard]] RowList* rows() { return &rows_; }
    /// Opens or closes the row at `place`; other places change nothing.
    Q_INVOKABLE void toggle(int place);
    [[nodiscard]] bool canRefetch() const { return !engine().isSyncing(); }
    Q_INVOKABLE void refetch(int place);

  Q_SIGNALS:
    void changed();
    void canRefetchChanged();

  private:
    void refresh() override;
    [[nodiscard]] bool isRow(int place) const;

    QString since_;
    RowList rows_;
    std::vector<std::string> labels_;  ///< of the rows
    std::set<std::string> expanded_;   ///< labels
};

}  // namespace vantrell
