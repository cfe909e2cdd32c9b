#include "screens/words/RunWords.h"

#include "screens/components/ShownText.h"

#include <QCoreApplication>

namespace vantrell {
namespace {

class RunWords {
    Q_DECLARE_TR_FUNCTIONS(vantrell::RunWords)
};

QString withItem(const QString& part, const QString& item) {
    return item.isEmpty() ? part : RunWords::tr("%1 · %2", "part of a run and its date").arg(part, item);
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
        case RunFailure::Kind::keyRefused:
            break;
    }
    return RunWords::tr(
               "Authentication failed — %1. Check that the key was created under Users and Access → "
               "Integrations → App Store Connect API with the Finance role (an In-App Purchase key will not "
               "work).")
        .arg(fromUtf8(failure->detail));
}

QString runText(const std::optional<FinishedRun>& run, const Locale& locale, const TimeZone& zone) {
    if (!run) {
        return {};
    }
    const QString time = fromUtf8(locale.dateAndTime(run->at, zone));
    switch (run->kind) {
        case RunKind::sync:
            return RunWords::tr("Sync finished %1").arg(time);
        case RunKind::backfill:
            return RunWords::tr("Backfill finished %1").arg(time);
        case RunKind::refetch:
            break;
    }
    return RunWords::tr("Re-fetch finished %1").arg(time);
}

}  // namespace vantrell
