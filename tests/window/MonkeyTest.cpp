#include "TrialHouse.h"
#include "WindowDriver.h"

#include <algorithm>
#include <ctime>
#include <iostream>
#include <random>

#include <QGuiApplication>
#include <QKeySequence>
#include <QTest>

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using testing::Complaints;
using testing::TrialHouse;
using testing::WindowDriver;

/// Clicks, types and quits at random while the sample service fills the store.
class Monkey {
  public:
    explicit Monkey(unsigned seed) : dice_(seed) {}

    void start() {
        house_.start(true);
        expect(stored() >= stored_, "a report is lost");
    }
    void quit() {
        QTest::qWait(roll(60) * roll(8));
        const std::clock_t begun = std::clock();
        house_.end();
        note(begun);
        const StoreHealth& health = house_.app().context().health();
        expect(!health.isDamaged() && !health.unsaved(), "the store isn't well");
        stored_ = stored();
        expectSilence();
    }
    void act() {
        const std::clock_t begun = std::clock();
        auto* focused = qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow());
        QQuickWindow& window = focused == nullptr ? house_.window() : *focused;
        const QPoint place(roll(window.width()), roll(window.height()));
        const int action = roll(20);
        if (action < 8) {
            WindowDriver(window).pressAny(roll(1000));
        } else if (action < 16) {
            const QKeyCombination key = QKeySequence(keys_[roll(static_cast<int>(keys_.size()))])[0];
            QTest::keyClick(&window, key.key(), key.keyboardModifiers());
        } else if (action < 18) {
            QTest::mouseClick(&window, roll(3) == 0 ? Qt::RightButton : Qt::LeftButton, {}, place);
        } else if (action == 18) {
            QWheelEvent wheel(place, window.mapToGlobal(place), {}, {0, 240 - 480 * roll(2)}, Qt::NoButton,
                              {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&window, &wheel);
        } else {
            house_.appearance().setDark(roll(2) == 0);
            house_.window().resize(640 + roll(900), 480 + roll(600));
        }
        WindowDriver::settle();
        note(begun);
        QTest::qWait(roll(20));
        expectSilence();
    }
    /// Whatever lies over the screens is left, and another one comes.
    void expectAnswer() {
        WindowDriver driver(house_.window());
        house_.root().about()->close();
        house_.window().requestActivate();
        for (int layer = 0; layer < 4; ++layer) {
            driver.key(Qt::Key_Escape);
        }
        house_.root().select(Destination::dashboard);
        driver.key(Qt::Key_2, Qt::ControlModifier);
        const auto isThere = [this] {
            return house_.root().selection() == Destination::apps || !house_.root().hasCredentials();
        };
        driver.waitUntil(isThere, "for an answer");
    }
    [[nodiscard]] int violations() const { return violations_; }
    [[nodiscard]] std::clock_t longest() const { return longest_; }

  private:
    int roll(int sides) { return std::uniform_int_distribution(0, sides - 1)(dice_); }
    [[nodiscard]] std::size_t stored() { return house_.app().context().salesReports().all().size(); }
    // By the processor's time, since the machine may be busy with something else.
    void note(std::clock_t begun) {
        constexpr std::clock_t bearable = 5000;
        const std::clock_t milliseconds = (std::clock() - begun) * 1000 / CLOCKS_PER_SEC;
        longest_ = std::max(longest_, milliseconds);
        expect(milliseconds < bearable, "it doesn't answer");
    }
    void expectSilence() {
        const std::string said = complaints_.take();
        expect(said.empty(), said);
    }
    void expect(bool isSo, const std::string& otherwise) {
        if (!isSo) {
            ++violations_;
            std::cerr << otherwise << std::endl;
        }
    }

    const QStringList keys_ =
        QStringLiteral(
            "Tab Tab Shift+Backtab Up Down Left Right Return Space Esc Home End PgUp PgDown Menu F5 Del 7 B "
            "Alt+Left Ctrl+A Ctrl+C Ctrl+V Ctrl+X Ctrl+1 Ctrl+2 Ctrl+3 Ctrl+4 Ctrl+5 Ctrl+6 Ctrl+Q")
            .split(u' ');
    Complaints complaints_;
    std::mt19937 dice_;
    TrialHouse house_;
    std::size_t stored_ = 0;
    int violations_ = 0;
    std::clock_t longest_ = 0;
};

int run(int actions, int quits, unsigned seed) {
    Monkey monkey(seed);
    int done = 0;
    for (int quit = 1; quit <= quits; ++quit) {
        monkey.start();
        for (; done < static_cast<qint64>(actions) * quit / quits; ++done) {
            monkey.act();
            if (done % 50 == 49) {
                monkey.expectAnswer();
            }
        }
        monkey.quit();
    }
    std::cout << "monkey: " << done << " actions, " << quits << " quits, " << monkey.violations()
              << " violations, longest action " << monkey.longest() << " ms of the processor, seed " << seed
              << std::endl;
    return monkey.violations() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace vantrell

int main(int argc, char** argv) {
    // What is exported by chance lands there.
    const vantrell::testing::TemporaryFolder home;
    qputenv("HOME", home.path().c_str());
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleMock(&argc, argv);
    QStringList plan = QGuiApplication::arguments().mid(1);
    plan += QStringList{QStringLiteral("200"), QStringLiteral("5"), QStringLiteral("1")}.mid(plan.size());
    try {
        return vantrell::run(plan[0].toInt(), plan[1].toInt(), plan[2].toUInt());
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return EXIT_FAILURE;
    }
}
