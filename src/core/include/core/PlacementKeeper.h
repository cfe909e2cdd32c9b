#pragma once

#include "core/WindowPlacement.h"

#include <filesystem>

#include <QObject>
#include <QTimer>
#include <QWindow>

namespace vantrell {

/// Puts a window where it was when it was last open, and remembers where it is moved to.
class PlacementKeeper : public QObject {
    Q_OBJECT

  public:
    /// `window` must outlive the keeper and not be shown yet.
    PlacementKeeper(QWindow& window, std::filesystem::path file);
    ~PlacementKeeper() override;

  private:
    void restore();
    void noteChange();
    void save();
    void saveNow();

    QWindow& window_;
    const std::filesystem::path file_;
    WindowPlacement placement_;
    QTimer saving_;
};

}  // namespace vantrell
