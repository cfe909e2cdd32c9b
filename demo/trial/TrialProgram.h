#pragma once

#include "trial/TrialOptions.h"

#include <ostream>

namespace vantrell {

/// How the trial program ended, as its exit code.
enum class TrialEnd {
    done = 0,     ///< no `lastError`; that doesn't mean that data came
    noStore = 1,  ///< the store can't be opened or is in use
    usage = 2,
    runFailed = 3,   ///< `lastError` is set
    notWritten = 4,  ///< an export or picture couldn't be written
    notStored = 5,   ///< something couldn't be saved, or stored lines couldn't be read
};

/// Runs one operation without a window: progress and, as the last line, what went wrong on `errors`; reports
/// by status and the headline figures on `output`. Exports are written after a run that failed as well, but
/// not of a damaged store. Where several things failed the store's failure is what the end and the last line
/// tell, else the run's, else that of the exports; the others stand before it.
[[nodiscard]] TrialEnd runTrial(TrialOptions options, std::ostream& output, std::ostream& errors);

/// Opens the main window and runs until it is closed. Needs a QGuiApplication.
[[nodiscard]] TrialEnd openTrialWindow(TrialOptions options, std::ostream& output, std::ostream& errors);

}  // namespace vantrell
