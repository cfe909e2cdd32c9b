#include "WindowDriver.h"
#include "WindowHouse.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Complaints;
using testing::WindowDriver;
using testing::WindowHouse;

class Controls : public ::testing::Test {
  protected:
    Controls() {
        house.daily("2026-11-21", "Notebook", "USD", 3);
        house.show();
    }
    ~Controls() override { EXPECT_EQ(complaints.take(), ""); }
    Controls(const Controls&) = delete;
    Controls& operator=(const Controls&) = delete;

    Complaints complaints;
    WindowHouse house;
    WindowDriver driver{house.window()};
    const QString figure = QStringLiteral("All time, ");
    const QString breakdown = QStringLiteral("By currency");
};

TEST_F(Controls, AFigureOpensAndClosesWhatItIsMadeOf) {
    driver.click(QAccessible::Button, figure);
    driver.expectToSee(QAccessible::Grouping, breakdown);
    driver.click(QAccessible::Button, figure);
    EXPECT_FALSE(driver.sees(QAccessible::Grouping, breakdown));
    driver.tabTo(QAccessible::Button, figure);
    driver.key(Qt::Key_Return);
    driver.expectToSee(QAccessible::Grouping, breakdown);
    driver.key(Qt::Key_Escape);
    EXPECT_FALSE(driver.sees(QAccessible::Grouping, breakdown));
    driver.key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "$3.00");
}

TEST_F(Controls, TheMenusAnswerToTheArrowKeys) {
    driver.tabTo(QAccessible::Button, QStringLiteral("All Apps"));
    driver.key(Qt::Key_Return);
    driver.expectToSee(QAccessible::CheckBox, QStringLiteral("Notebook"));
    driver.key(Qt::Key_Down);
    driver.key(Qt::Key_Space);
    driver.key(Qt::Key_Up);
    driver.key(Qt::Key_Escape);
    const AppFilterPicker& filter = *house.windows().root().filter();
    EXPECT_EQ(filter.title().toStdString(), "No Apps");
    house.app().store().setAppFilter(std::set<std::int64_t>{99});
    EXPECT_EQ(filter.title().toStdString(), "1 App") << "as the translation into English has it";
    driver.key(Qt::Key_Return);
    driver.key(Qt::Key_Space);
    EXPECT_EQ(house.windows().root().filter()->title().toStdString(), "All Apps") << "a key was lost";
}

TEST_F(Controls, CtrlQEndsTheProgram) {
    const QSignalSpy ends(qmlEngine(&house.window()), &QQmlEngine::quit);
    driver.key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(ends.count(), 1);
}

TEST_F(Controls, ATextFieldHasTheUsualMenu) {
    driver.key(Qt::Key_6, Qt::ControlModifier);
    driver.tabTo(QAccessible::EditableText, QStringLiteral("Key ID"));
    driver.key(Qt::Key_Menu);
    driver.click(QAccessible::MenuItem, QStringLiteral("Select All"));
    driver.key(Qt::Key_Menu);
    driver.click(QAccessible::MenuItem, QStringLiteral("Cut"));
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "key");
    EXPECT_EQ(house.windows().root().settings()->credentials()->keyID().toStdString(), "");
    driver.key(Qt::Key_Menu);
    driver.click(QAccessible::MenuItem, QStringLiteral("Paste"));
    EXPECT_EQ(house.windows().root().settings()->credentials()->keyID().toStdString(), "key");
}

}  // namespace
}  // namespace vantrell
