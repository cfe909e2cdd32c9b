#include "WindowDriver.h"
#include "WindowHouse.h"
#include "trial/SpokenText.h"

#include <sstream>
#include <string>

#include <QClipboard>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Complaints;
using testing::WindowDriver;
using testing::WindowHouse;

class AppsWindow : public ::testing::Test {
  protected:
    AppsWindow() {
        house.daily("2026-11-21", "Notebook", "USD", 3);
        house.show();
        driver.click(QAccessible::ListItem, QStringLiteral("Apps Overview"));
        driver.expectToSee(QAccessible::ListItem, row);
    }
    [[nodiscard]] std::string title() const { return house.windows().root().screenTitle().toStdString(); }

    Complaints complaints;
    mutable WindowHouse house;
    WindowDriver driver{house.window()};
    const QString row = QStringLiteral("Notebook");
};

TEST_F(AppsWindow, OpensAnAppAndComesBackByPointerAndByKey) {
    driver.click(QAccessible::StaticText, row);
    driver.waitUntil([this] { return title() == "Notebook"; }, "the app is open");
    driver.expectToSee(QAccessible::Heading, QStringLiteral("By year"));
    driver.click(QAccessible::Button, QStringLiteral("Back"));
    driver.waitUntil([this] { return title() == "Apps Overview"; }, "the apps are back");
    driver.key(Qt::Key_Down);
    driver.key(Qt::Key_Up);
    driver.key(Qt::Key_Return);
    driver.waitUntil([this] { return title() == "Notebook"; }, "the row had the focus");
    driver.key(Qt::Key_Left, Qt::AltModifier);
    driver.waitUntil([this] { return title() == "Apps Overview"; }, "the apps are back");
    driver.key(Qt::Key_Return);
    driver.click(QAccessible::ListItem, QStringLiteral("Apps Overview"));
    driver.waitUntil([this] { return title() == "Apps Overview"; }, "a selection leaves the app");
    EXPECT_EQ(complaints.take(), "");
}

TEST_F(AppsWindow, CopiesTheRowThatHasTheFocus) {
    driver.click(QAccessible::StaticText, row);
    driver.waitUntil([this] { return title() == "Notebook"; }, "the app is open");
    driver.key(Qt::Key_Down);
    driver.key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
              "2026\t3 app\tFrom daily reports · YTD\t$3.00");
    driver.key(Qt::Key_Menu);
    QGuiApplication::clipboard()->clear();
    driver.expectToSee(QAccessible::MenuItem, QStringLiteral("Copy"));
    driver.click(QAccessible::MenuItem, QStringLiteral("Copy"));
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("2026")));
    EXPECT_EQ(complaints.take(), "");
}

// The rows that come back are those that have left the sight at the other end.
TEST_F(AppsWindow, TellsTheSameOfEachDayAfterALookAtTheLastOne) {
    driver.click(QAccessible::ListItem, QStringLiteral("Trends Over Time"));
    driver.tabTo(QAccessible::ListItem, QStringLiteral("Sat, Nov 21, 2026"));
    const std::string before = spokenText(house.window());
    driver.key(Qt::Key_End);
    driver.expectToSee(QAccessible::ListItem, QStringLiteral("Fri, Oct 23, 2026"));
    driver.key(Qt::Key_Home);
    const auto toldAgain = [&] {
        const std::string after = spokenText(house.window());
        std::istringstream lines(before);
        std::string line;
        while (std::getline(lines, line) && after.find(line) != std::string::npos) {
        }
        return lines.eof();
    };
    driver.waitUntil(toldAgain, "for the first rows to be back as they were");
    EXPECT_NE(before.find("Sat, Nov 21, 2026 3 app $3.00"), std::string::npos) << before;
    EXPECT_EQ(complaints.take(), "");
}

}  // namespace
}  // namespace vantrell
