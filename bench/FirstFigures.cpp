#include "FirstFigures.h"

#include "Measure.h"
#include "figures/Days.h"
#include "screens/HeadlineFigures.h"

#include <iostream>
#include <optional>
#include <sstream>
#include <stdexcept>

#include <QCoreApplication>
#include <QProcess>

namespace vantrell::bench {

std::size_t dashboard(const EarningsStore& store, const Locale& locale) {
    const ReportCalendar& calendar = store.calendar();
    const auto points = dayPoints(store.snapshot(), store.converter(), calendar.dayKey(30),
                                  calendar.dayKey(1), store.appFilter());
    return headlineFigures(store, locale).size() + points.size();
}

FirstFigures measureFirstFigures(const std::filesystem::path& folder) {
    QProcess process;
    FirstFigures measured;
    measured.figuresMilliseconds = millisecondsOf([&] {
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--first-figures"), QString::fromStdString(folder.string())});
        process.waitForReadyRead(-1);
    });
    process.waitForFinished(-1);
    std::istringstream output(process.readAllStandardOutput().toStdString());
    std::size_t figures = 0;
    if (!(output >> measured.loadMilliseconds >> measured.bytes >> figures) || figures == 0) {
        throw std::runtime_error("the first figures did not come: " +
                                 process.readAllStandardError().toStdString());
    }
    return measured;
}

void showFirstFigures(const std::filesystem::path& folder) {
    MemoryService service;
    std::optional<BenchProgram> program;
    const double open = millisecondsOf([&] { program.emplace(service, folder); });
    const std::int64_t before = residentBytes();
    const double load = millisecondsOf([&] { program->store().reload(program->context()); });
    const std::int64_t bytes = residentBytes() - before;
    const std::size_t figures = dashboard(program->store(), program->locale());
    std::cout << open + load << " " << bytes << " " << figures << std::endl;
}

}  // namespace vantrell::bench
