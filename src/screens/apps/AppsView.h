#pragma once

#include "figures/Payouts.h"
#include "figures/Products.h"
#include "icons/AppIconStore.h"
#include "screens/BlockList.h"
#include "screens/Screen.h"
#include "screens/apps/WindowsRow.h"
#include "screens/components/EmptyState.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace vantrell {

/// The apps side by side: proceeds with the products beneath each app, years, and what was paid. The figures
/// are taken from the store once per load; the filter only chooses among them.
class AppsView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY emptyStateChanged)
    Q_PROPERTY(vantrell::EmptyState emptyState READ emptyState NOTIFY emptyStateChanged)
    Q_PROPERTY(int yearCount READ yearCount NOTIFY yearCountChanged)
    Q_PROPERTY(vantrell::BlockList* rows READ rows CONSTANT)

  public:
    AppsView(const ScreenParts& parts, AppIconStore& icons, QObject* parent = nullptr);

    /// Nothing passes the filter.
    [[nodiscard]] bool isEmpty() const { return !emptyState_.title.isEmpty(); }
    [[nodiscard]] const EmptyState& emptyState() const { return emptyState_; }
    /// How many columns the matrix has.
    [[nodiscard]] int yearCount() const { return static_cast<int>(matrix_.years.size()); }
    [[nodiscard]] BlockList* rows() { return &rows_; }

    /// Opens the app that the row belongs to.
    Q_INVOKABLE void open(const vantrell::WindowsRow& row) { Q_EMIT opened(row.appID); }

  Q_SIGNALS:
    void emptyStateChanged();
    void yearCountChanged();
    void opened(std::int64_t appID);

  private:
    void refresh() override;
    void takeSnapshots();
    void loadIcons();
    void addProceeds(BlockBuilder& rows);
    void addEntry(BlockBuilder& rows, const AppTableEntry& entry, bool isBanded);
    void addYears(BlockBuilder& rows);
    void addPayouts(BlockBuilder& rows);
    void showEmptyState(bool isEmpty);
    [[nodiscard]] bool passes(const AppInfo& app) const;
    [[nodiscard]] FigureContext context() const { return {store(), locale()}; }

    std::optional<std::int64_t> loadedRevision_;
    std::vector<AppTableEntry> entries_;
    YearMatrix matrix_;
    std::vector<AppPayout> payouts_;
    ProductWindows productsByApp_;
    AppIconStore& icons_;
    EmptyState emptyState_;
    BlockList rows_;
};

}  // namespace vantrell
