#include "screens/words/RunWords.h"

#include "base/Overloaded.h"
#include "screens/components/ShownText.h"
#include "screens/words/HttpWords.h"

#include <algorithm>
#include <cstdint>
#include <variant>

#include <QCoreApplication>

namespace vantrell {
namespace {

class RunWords {
    Q_DECLARE_TR_FUNCTIONS(vantrell::RunWords)
};

constexpr std::int64_t mostMinutes = 1'000'000;

QString problemText(const std::string& message, const std::optional<HttpFailure>& unheard) {
    return unheard ? failureText(*unheard) : fromUtf8(message);
}

/// As part of a sentence.
QString shortText(const ReportProblem& problem) {
    using enum HttpFailure::Kind;
    const bool isOffline = problem.unheard && (problem.unheard->kind == hostNotFound ||
                                               problem.unheard->kind == connectionFailed);
    return isOffline ? RunWords::tr("the network is unreachable")
                     : problemText(problem.message, problem.unheard);
}

QString finishedText(RunKind kind) {
    switch (kind) {
        case RunKind::sync:
            return RunWords::tr("Sync finished %1");
        case RunKind::backfill:
            return RunWords::tr("Backfill finished %1");
        case RunKind::refetch:
            break;
    }
    return RunWords::tr("Re-fetch finished %1");
}

QString withItem(const QString& part, const QString& item) {
    return item.isEmpty() ? part : RunWords::tr("%1 · %2", "part of a run and its date").arg(part, item);
}

QString refusedText(const std::string& message, std::optional<std::chrono::minutes> clockAhead) {
    if (clockAhead) {
        const int minutes =
            static_cast<int>(std::clamp<std::int64_t>(clockAhead->count(), -mostMinutes, mostMinutes));
        return minutes > 0
                   ? RunWords::tr(
                         "Authentication failed — %1. The clock of this computer is %n minutes ahead of "
                         "the service's, which refuses every key then.",
                         "", minutes)
                         .arg(fromUtf8(message))
                   : RunWords::tr(
                         "Authentication failed — %1. The clock of this computer is %n minutes behind "
                         "the service's, which refuses every key then.",
                         "", -minutes)
                         .arg(fromUtf8(message));
    }
    return RunWords::tr(
               "Authentication failed — %1. Check that the key was created under Users and Access → "
               "Integrations → App Store Connect API with the Finance role (an In-App Purchase key will not "
               "work).")
        .arg(fromUtf8(message));
}

}  // namespace

QString runText(const std::optional<RunProgress>& progress) {
    if (!progress) {
        return RunWords::tr("Syncing…");
    }
    const QString item = fromUtf8(progress->item);
    switch (progress->part) {
        case RunProgress::Part::days:
            return withItem(RunWords::tr("Daily reports"), item);
        case RunProgress::Part::months:
            return withItem(RunWords::tr("Monthly reports"), item);
        case RunProgress::Part::years:
            return withItem(RunWords::tr("Yearly reports"), item);
        case RunProgress::Part::finance:
            return withItem(RunWords::tr("Finance reports"), item);
        case RunProgress::Part::refetch:
            return RunWords::tr("Re-fetching %1").arg(item);
        case RunProgress::Part::financeRefetch:
            break;
    }
    return RunWords::tr("Re-fetching finance %1").arg(item);
}

QString runText(const std::optional<RunFailure>& failure) {
    if (!failure) {
        return {};
    }
    switch (failure->kind) {
        case RunFailure::Kind::noKey:
            return RunWords::tr("Add your App Store Connect key in Settings first.");
        case RunFailure::Kind::damagedStore:
            return RunWords::tr("The store is damaged, so nothing is fetched into it.");
        case RunFailure::Kind::noMonth:
            return RunWords::tr("Use a month like 2026-08.");
        case RunFailure::Kind::rateLimited:
            return RunWords::tr("Rate limited by Apple — the run stopped and will resume on the next sync.");
        case RunFailure::Kind::unreachable:
            return RunWords::tr("No connection — the run stopped and will resume on the next sync. %1")
                .arg(problemText(failure->detail, failure->unheard));
        case RunFailure::Kind::nothingStored:
            return RunWords::tr("Nothing could be fetched. %1")
                .arg(problemText(failure->detail, failure->unheard));
        case RunFailure::Kind::keyRefused:
            break;
    }
    return refusedText(failure->detail, failure->clockAhead);
}

QString runText(const std::optional<FinishedRun>& run, const Locale& locale, const TimeZone& zone) {
    if (!run) {
        return {};
    }
    const QString end = finishedText(run->kind).arg(fromUtf8(locale.dateAndTime(run->at, zone)));
    return run->failed == 0 || !run->firstProblem
               ? end
               : RunWords::tr("%1 · %n failed: %2", "the end of a run and why reports failed", run->failed)
                     .arg(end, shortText(*run->firstProblem));
}

QString connectionText(const std::optional<ConnectionTest>& test) {
    if (!test) {
        return RunWords::tr("Enter the Issuer ID, Key ID, key file and vendor number first.");
    }
    using namespace response;  // NOLINT(google-build-using-namespace)
    return std::visit(
        Overloaded{
            [&](const Success&) {
                return RunWords::tr("OK — report received (%1 data lines)").arg(test->lines);
            },
            // A reasoned answer proves the key good, though there is no report to show.
            [](const NotYetAvailable& pending) {
                return RunWords::tr("Credentials accepted. Not published yet — %1")
                    .arg(fromUtf8(pending.message));
            },
            [](const NoSales& none) {
                return RunWords::tr("Credentials accepted. No sales — %1").arg(fromUtf8(none.message));
            },
            [](const Gone& gone) { return RunWords::tr("Past retention — %1").arg(fromUtf8(gone.message)); },
            [](const WrongVersion& refused) {
                return RunWords::tr("Version mismatch — %1").arg(fromUtf8(refused.detail));
            },
            [](const AuthFailure& refused) { return refusedText(refused.message, refused.clockAhead); },
            [](const RateLimited& limited) {
                return RunWords::tr("Rate limited — %1").arg(fromUtf8(limited.message));
            },
            [](const Failure& failure) {
                return RunWords::tr("Failed — %1").arg(problemText(failure.message, failure.unheard));
            }},
        test->answer);
}

}  // namespace vantrell
