#pragma once

#include "sync/SyncEngine.h"

#include <optional>
#include <ostream>

#include <QObject>

namespace vantrell {

/// Writes what a run is doing: a line for each new kind of work, and one for each tenth of it that is done.
class ProgressLines : public QObject {
  public:
    /// Both must outlive this.
    ProgressLines(const SyncEngine& engine, std::ostream& output);

  private:
    void progressChanged();

    const SyncEngine& engine_;
    std::ostream& output_;
    std::optional<RunProgress::Part> lastPart_;
    int lastTenth_ = -1;
};

}  // namespace vantrell
