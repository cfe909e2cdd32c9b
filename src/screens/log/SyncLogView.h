#pragma once

#include "screens/RowList.h"
#include "screens/Screen.h"
#include "screens/log/SyncLogRow.h"

namespace vantrell {

/// The newest lines of the sync log, growing while it is in sight.
class SyncLogView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(vantrell::RowList* rows READ rows CONSTANT)

  public:
    explicit SyncLogView(const ScreenParts& parts, QObject* parent = nullptr);

    /// At most 500, newest first.
    [[nodiscard]] RowList* rows() { return &rows_; }

  private:
    void refresh() override;

    RowList rows_;
};

}  // namespace vantrell
