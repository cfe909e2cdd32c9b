#include "LastRun.h"

#include "base/WholeNumber.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace vantrell {
namespace {

constexpr const char* lastRunKey = "lastRun";
constexpr std::array<std::pair<RunKind, std::string_view>, 3> kindNames{
    {{RunKind::sync, "sync"}, {RunKind::backfill, "backfill"}, {RunKind::refetch, "refetch"}}};

}  // namespace

void keepLastRun(const FinishedRun& run, Defaults& defaults) {
    const auto kind = std::ranges::find(kindNames, run.kind, &std::pair<RunKind, std::string_view>::first);
    TextMap texts{{"kind", std::string(kind->second)},
                  {"at", std::to_string(run.at.time_since_epoch().count())},
                  {"failed", std::to_string(run.failed)}};
    if (run.firstProblem) {
        texts.emplace("problem", run.firstProblem->message);
    }
    defaults.setTextMap(lastRunKey, texts);
}

std::optional<FinishedRun> keptLastRun(const Defaults& defaults, Instant now) {
    const TextMap texts = defaults.textMap(lastRunKey).value_or(TextMap());
    const auto text = [&texts](std::string_view key) {
        const auto found = texts.find(key);
        return found == texts.end() ? std::string_view() : std::string_view(found->second);
    };
    const auto kind =
        std::ranges::find(kindNames, text("kind"), &std::pair<RunKind, std::string_view>::second);
    const auto at = wholeNumber(text("at"));
    const auto failed = wholeNumber(text("failed"));
    if (kind == kindNames.end() || !at || !failed || !std::in_range<int>(*failed) ||
        Instant(std::chrono::microseconds(*at)) > now) {
        return std::nullopt;
    }
    FinishedRun run{kind->first, Instant(std::chrono::microseconds(*at)), static_cast<int>(*failed)};
    if (texts.contains("problem")) {
        run.firstProblem = ReportProblem{std::string(text("problem"))};
    }
    return run;
}

}  // namespace vantrell
