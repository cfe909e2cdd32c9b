#include "trial/ProgressLines.h"

#include "screens/words/RunWords.h"

namespace vantrell {

ProgressLines::ProgressLines(const SyncEngine& engine, std::ostream& output)
    : engine_(engine), output_(output) {
    // Queued, since of what is passed over only the last is worth a line.
    connect(&engine, &SyncEngine::progressChanged, this, &ProgressLines::progressChanged,
            Qt::QueuedConnection);
}

void ProgressLines::progressChanged() {
    const auto progress = engine_.progress();
    if (!progress) {
        return;
    }
    constexpr double tenths = 10;
    const int tenth = static_cast<int>(progress->fraction.value_or(0) * tenths);
    if (progress->part == lastPart_ && tenth == lastTenth_) {
        return;
    }
    lastPart_ = progress->part;
    lastTenth_ = tenth;
    output_ << runText(progress).toStdString();
    if (progress->fraction) {
        output_ << " (" << static_cast<int>(*progress->fraction * 100) << " %)";
    }
    output_ << std::endl;
}

}  // namespace vantrell
