#include "trial/RunProgress.h"

namespace vantrell {
namespace {

// What comes before the joiner: "Daily reports" of "Daily reports · 2026-08-14".
std::string kindOf(const std::string& text) {
    return text.substr(0, text.find(" · "));
}

}  // namespace

RunProgress::RunProgress(const SyncEngine& engine, std::ostream& output) : engine_(engine), output_(output) {
    // Queued, since text and fraction change one after the other.
    connect(&engine, &SyncEngine::progressTextChanged, this, &RunProgress::progressChanged,
            Qt::QueuedConnection);
    connect(&engine, &SyncEngine::progressFractionChanged, this, &RunProgress::progressChanged,
            Qt::QueuedConnection);
}

void RunProgress::progressChanged() {
    const std::string text = engine_.progressText();
    if (text.empty()) {
        return;
    }
    constexpr double tenths = 10;
    const auto fraction = engine_.progressFraction();
    const int tenth = fraction ? static_cast<int>(*fraction * tenths) : 0;
    if (kindOf(text) == lastKind_ && tenth == lastTenth_) {
        return;
    }
    lastKind_ = kindOf(text);
    lastTenth_ = tenth;
    output_ << text;
    if (fraction) {
        output_ << " (" << static_cast<int>(*fraction * 100) << " %)";
    }
    output_ << std::endl;
}

}  // namespace vantrell
