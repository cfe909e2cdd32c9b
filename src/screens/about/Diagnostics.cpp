#include "screens/about/Diagnostics.h"

#include "base/ProgramVersion.h"
#include "data/ReportFrequency.h"
#include "screens/words/RunWords.h"
#include "screens/words/StoreNotice.h"

#include <map>
#include <sstream>

#include <QGuiApplication>
#include <QSysInfo>

namespace vantrell {
namespace {

void tellReports(const ModelContext& context, std::ostream& text) {
    std::map<std::string, std::map<std::string_view, int>> counts;
    for (const auto& [id, report] : context.salesReports().all()) {
        const auto frequency = reportFrequency(report.frequencyRaw);
        ++counts[frequency ? std::string(lowerCaseText(*frequency)) : "other"][rawText(report.status())];
    }
    for (const auto& [id, report] : context.financeReports().all()) {
        ++counts["finance"][rawText(report.status())];
    }
    for (const auto& [kind, byStatus] : counts) {
        text << "Reports, " << kind << ":";
        for (const auto& [status, count] : byStatus) {
            text << " " << count << " " << status;
        }
        text << "\n";
    }
}

void tellRuns(const ScreenParts& parts, std::ostream& text) {
    SyncEngine& engine = parts.engine;
    const Account& account = engine.account();
    text << "Key: " << (account.hasCredentials() ? "stored" : account.problem().value_or("none")) << "\n";
    const QString run = runText(engine.lastRun(), parts.locale, parts.localTime.zone());
    text << "Last run: " << (run.isEmpty() ? "none" : run.toStdString()) << "\n";
    if (const auto& error = engine.lastError()) {
        text << "Last error: " << runText(error).toStdString() << "\n";
    }
}

}  // namespace

std::string diagnosticsText(const ScreenParts& parts) {
    std::ostringstream text;
    text << "Vantrell " << programVersion() << " (" << programBuild() << ")\n";
    text << "System: " << QSysInfo::prettyProductName().toStdString() << ", "
         << QSysInfo::currentCpuArchitecture().toStdString() << ", Qt " << qVersion() << ", "
         << QGuiApplication::platformName().toStdString() << "\n";
    text << "Language: " << parts.locale.languageTag() << ", zone " << parts.localTime.zone().id() << "\n";
    text << "Store: " << storeProblem(parts.context.health()).value_or("well") << "\n";
    tellReports(parts.context, text);
    tellRuns(parts, text);
    return text.str();
}

}  // namespace vantrell
