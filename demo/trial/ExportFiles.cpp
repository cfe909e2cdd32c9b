#include "trial/ExportFiles.h"

#include "figures/Exports.h"
#include "files/AtomicFile.h"

namespace vantrell {

std::optional<std::string> writeExports(const EarningsStore& store, const std::filesystem::path& folder) {
    std::optional<std::string> firstProblem;
    for (const ExportKind kind : exportKinds) {
        const auto file = folder / (std::string(exportFileName(kind)) + ".csv");
        auto problem = writeAtomically(file, exportText(store, kind));
        if (problem && !firstProblem) {
            firstProblem = std::move(problem);
        }
    }
    return firstProblem;
}

}  // namespace vantrell
