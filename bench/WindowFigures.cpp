#include "WindowFigures.h"

#include "BenchProgram.h"
#include "LaterService.h"
#include "Measure.h"
#include "base/ThreadWorker.h"
#include "core/AppWindows.h"
#include "screens/Appearance.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

namespace vantrell::bench {
namespace {

// The drive loop's rounds go on as long as the windows live.
constexpr int openEnded = 1;

// Says for how long at most the event loop did not come round.
class Heartbeat : public QObject {
  public:
    Heartbeat() {
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, &Heartbeat::beat);
        since_.start();
        timer_.start(interval);
    }

    [[nodiscard]] double longestStall() const { return static_cast<double>(longest_) / 1e6; }

  private:
    static constexpr std::chrono::milliseconds interval{1};

    void beat() {
        const std::int64_t late = since_.nsecsElapsed() - std::chrono::nanoseconds(interval).count();
        longest_ = std::max(longest_, late);
        since_.restart();
    }

    QTimer timer_;
    QElapsedTimer since_;
    std::int64_t longest_ = 0;
};

// From `act` to the next frame.
double untilPainted(QQuickWindow& window, const std::function<void()>& act) {
    QEventLoop loop;
    const auto painted = QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit,
                                          Qt::QueuedConnection);
    const double elapsed = millisecondsOf([&] {
        act();
        window.update();
        loop.exec();
    });
    QObject::disconnect(painted);
    return elapsed;
}

void waitUntil(const std::function<bool()>& isDone) {
    while (!isDone()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

// Nobody goes on sooner than that, and the program uses the time.
void lookAtFirstScreen() {
    constexpr auto glance = std::chrono::seconds(1);
    QEventLoop loop;
    QTimer::singleShot(glance, &loop, &QEventLoop::quit);
    loop.exec();
}

constexpr std::array destinations{Destination::apps,    Destination::byDay,    Destination::history,
                                  Destination::payouts, Destination::settings, Destination::dashboard};

double slowestSwitch(AppWindows& windows) {
    double slowest = 0;
    for (const Destination::Value destination : destinations) {
        slowest = std::max(slowest,
                           untilPainted(windows.mainWindow(), [&] { windows.root().select(destination); }));
    }
    return slowest;
}

double slowestFilterChange(AppWindows& windows, EarningsStore& store) {
    double slowest = 0;
    const std::int64_t app = store.snapshot()->catalog->apps().at(0).id;
    for (const Destination::Value destination : destinations) {
        windows.root().select(destination);
        for (const AppFilter& filter : {AppFilter({app}), AppFilter()}) {
            slowest =
                std::max(slowest, untilPainted(windows.mainWindow(), [&] { store.setAppFilter(filter); }));
        }
    }
    return slowest;
}

// The sheet of yesterday, with all lines of its report.
double openingOfDay(AppWindows& windows, EarningsStore& store) {
    windows.root().select(Destination::dashboard);
    const std::string day = store.calendar().dayKey(1);
    const double opening =
        untilPainted(windows.mainWindow(), [&] { windows.root().dashboard()->selectedDay()->open(day, {}); });
    windows.root().dashboard()->selectedDay()->dismiss();
    return opening;
}

// Days, months, and the long reports of years.
QCoro::Task<> fetchAgain(BenchProgram& program, std::vector<std::string> months,
                         std::vector<std::string> years) {
    for (const std::string& month : months) {
        co_await program.app().engine().refetchMonth(month);
    }
    for (const std::string& year : years) {
        co_await program.fetchSales(ReportFrequency::yearly, year);
        // Tells the window as well.
        co_await program.app().engine().refreshRates(true);
    }
}

// Under the screen that has most to do when the figures change, with 365 days.
double longestStallOfRefetch(AppWindows& windows, BenchProgram& program) {
    constexpr int longestWindow = 2;
    windows.root().select(Destination::byDay);
    windows.root().byDay()->selectWindow(longestWindow);
    untilPainted(windows.mainWindow(), [] {});
    const ReportCalendar& calendar = program.store().calendar();
    TaskScope& tasks = program.app().tasks();
    const Heartbeat heartbeat;
    tasks.spawn(fetchAgain(program, {calendar.monthKey(1), calendar.monthKey(2)},
                           program.store().snapshot()->yearlyOKLabels));
    waitUntil([&] { return tasks.pending() == openEnded; });
    return heartbeat.longestStall();
}

}  // namespace

WindowFigures measureWindow(const std::filesystem::path& folder, std::int64_t dailyLines) {
    QProcess process;
    WindowFigures figures;
    figures.firstFrame = millisecondsOf([&] {
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--window"), QString::fromStdString(folder.string()),
                       QString::number(dailyLines)});
        process.waitForReadyRead(-1);
    });
    process.waitForFinished(-1);
    std::istringstream output(process.readAllStandardOutput().toStdString());
    std::string painted;
    if (!(output >> painted >> figures.screenSwitch >> figures.filterChange >> figures.openDay >>
          figures.longestStall)) {
        throw std::runtime_error("the window's figures did not come: " +
                                 process.readAllStandardError().toStdString());
    }
    return figures;
}

void showWindowFigures(const std::filesystem::path& folder, std::int64_t dailyLines) {
    MemoryService memory;
    LaterService service(memory);
    NoonClock clock;
    ThreadWorker worker;
    BenchProgram program(service, clock, worker, folder);
    FixedAppearance appearance;
    const ServiceOrigins origins;
    AppWindows windows(program.app(), program.parts(),
                       {.origins = origins, .appearance = appearance, .icons = {.folder = folder / "icons"}});
    windows.mainWindow().show();
    untilPainted(windows.mainWindow(), [] {});
    std::cout << "painted" << std::endl;
    memory = MemoryService(makeBenchData(dailyLines));
    windows.show();
    waitUntil([&] { return program.store().isLoaded() && !program.app().engine().isSyncing(); });
    lookAtFirstScreen();
    const double screenSwitch = slowestSwitch(windows);
    const double filterChange = slowestFilterChange(windows, program.store());
    const double openDay = openingOfDay(windows, program.store());
    std::cout << screenSwitch << " " << filterChange << " " << openDay << " "
              << longestStallOfRefetch(windows, program) << std::endl;
}

}  // namespace vantrell::bench
