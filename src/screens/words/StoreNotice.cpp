#include "screens/words/StoreNotice.h"

#include "data/ReportFrequency.h"
#include "screens/components/ShownText.h"

#include <QCoreApplication>
#include <QStringList>

namespace vantrell {
namespace {

class Words {
    Q_DECLARE_TR_FUNCTIONS(vantrell::StoreNotice)
};

QString whyUnsaved(const StoreError& error) {
    const QString words = shownText(error.description, messageCharacters);
    switch (error.kind) {
        case StoreFailure::diskFull:
            return Words::tr("Not stored: the disk is full.");
        case StoreFailure::readOnly:
            return Words::tr("Not stored: the store's file or folder can't be written.");
        case StoreFailure::inputOutput:
            return Words::tr("Not stored: the disk reports an error (%1).").arg(words);
        case StoreFailure::damaged:
            return Words::tr("Not stored: the store's file is damaged (%1).").arg(words);
        case StoreFailure::inUse:
            return Words::tr("Not stored: another program holds the store.");
        case StoreFailure::rejected:
        case StoreFailure::other:
            break;
    }
    return words.isEmpty() ? Words::tr("Not stored.") : Words::tr("Not stored: %1.").arg(words);
}

// A damaged store may hold anything in place of a date or a name.
QString reportName(const ReportName& report) {
    constexpr int enough = 20;
    const QString label = shownText(report.label, enough);
    const auto frequency = reportFrequency(report.group);
    if (!frequency) {
        return Words::tr("the finance report of %1 for %2").arg(label, shownText(report.group, enough));
    }
    switch (*frequency) {
        case ReportFrequency::daily:
            return Words::tr("the daily report of %1").arg(label);
        case ReportFrequency::weekly:
            return Words::tr("the weekly report of %1").arg(label);
        case ReportFrequency::monthly:
            return Words::tr("the monthly report of %1").arg(label);
        case ReportFrequency::yearly:
            break;
    }
    return Words::tr("the yearly report of %1").arg(label);
}

QString damageOf(const StoreHealth& health) {
    constexpr std::size_t mostNamed = 3;
    const auto& reports = health.damagedReports();
    if (reports.empty()) {
        return health.damage().empty()
                   ? Words::tr("This store is damaged.")
                   : Words::tr("This store is damaged (%1).").arg(shownText(health.damage()));
    }
    const std::size_t named = reports.size() > mostNamed ? mostNamed - 1 : reports.size();
    QStringList names;
    for (std::size_t number = 0; number < named; ++number) {
        names += reportName(reports[number]);
    }
    QString last = named < reports.size() ? Words::tr("%1 more").arg(reports.size() - named)
                   : named > 1            ? names.takeLast()
                                          : QString();
    const QString list = names.join(Words::tr(", ", "between names"));
    return Words::tr("This store is damaged: %1 can't be read in full.")
        .arg(last.isEmpty() ? list : Words::tr("%1 and %2").arg(list, last));
}

QString problemOf(const StoreHealth& health) {
    if (health.isDamaged()) {
        return damageOf(health) + u' ' +
               Words::tr("The figures leave out what can't be read, and nothing is stored or exported.");
    }
    return health.unsaved() ? whyUnsaved(*health.unsaved()) : QString();
}

}  // namespace

std::optional<std::string> storeProblem(const StoreHealth& health) {
    const QString problem = problemOf(health);
    return problem.isEmpty() ? std::nullopt : std::optional(problem.toStdString());
}

QString storeNotice(const StoreHealth& health) {
    const QString problem = problemOf(health);
    if (problem.isEmpty()) {
        return {};
    }
    return problem + u' ' +
           (health.isDamaged()
                ? Words::tr("Close the program and bring the store's file back from a backup.")
                : Words::tr("What was fetched is kept in memory and is stored as soon as it can be."));
}

}  // namespace vantrell
