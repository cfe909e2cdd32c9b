#include "WindowDriver.h"
#include "WindowHouse.h"
#include "testing/Golden.h"
#include "trial/SpokenText.h"

#include <functional>
#include <map>
#include <sstream>
#include <string>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeySequence>
#include <QMetaEnum>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Complaints;
using testing::WindowDriver;
using testing::WindowHouse;

/// The window of somebody who has sold one app on one day, and steps that are done to it.
class Steps : public ::testing::Test {
  public:
    Steps() {
        house.sold("2026-11-21", "Notebook", "USD", 3);
        house.show();
    }
    ~Steps() override { EXPECT_EQ(complaints.take(), ""); }
    Steps(const Steps&) = delete;
    Steps& operator=(const Steps&) = delete;

    /// A verb, and what it is done to: mostly a role and a name.
    void take(const QString& step) {
        const QString verb = step.section(u' ', 0, 0);
        const QString object = step.section(u' ', 1);
        const QString target = object.section(QStringLiteral(": "), 0, 0);
        const QString text = object.section(QStringLiteral(": "), 1);
        const auto role = static_cast<QAccessible::Role>(
            QMetaEnum::fromType<QAccessible::Role>().keyToValue(target.toLatin1()));
        const std::map<QString, std::function<void()>> verbs{
            {QStringLiteral("click"), [&] { driver.click(role, text); }},
            {QStringLiteral("tab"), [&] { driver.tabTo(role, text); }},
            {QStringLiteral("see"), [&] { driver.expectToSee(role, text); }},
            {QStringLiteral("miss"), [&] { EXPECT_FALSE(driver.sees(role, text)); }},
            {QStringLiteral("keys"), [&] { press(object.split(u' ')); }},
            {QStringLiteral("has"), [&] { expectProperty(target, text); }},
            {QStringLiteral("put"), [&] { QGuiApplication::clipboard()->setText(object); }},
            {QStringLiteral("copied"),
             [&] {
                 EXPECT_EQ(QGuiApplication::clipboard()->text(), QUrl::fromPercentEncoding(object.toUtf8()));
             }},
            {QStringLiteral("filter"),
             [&] { house.app().store().setAppFilter(std::set<std::int64_t>{object.toLongLong()}); }}};
        ASSERT_TRUE(verbs.contains(verb)) << step.toStdString();
        verbs.at(verb)();
    }

  protected:
    void TestBody() override {}
    void press(const QStringList& keys) {
        for (const QString& key : keys) {
            const QKeyCombination pressed = QKeySequence(key)[0];
            driver.key(pressed.key(), pressed.keyboardModifiers());
        }
    }
    void expectProperty(const QString& name, const QString& value) {
        const QQmlProperty property(&house.windows().root(), name);
        driver.waitUntil([&] { return property.read().toString() == value; }, "for " + name.toStdString());
    }

    Complaints complaints;
    WindowHouse house;
    WindowDriver driver{house.window()};
};

TEST(Window, DoesWhatTheStepsOfEachTextSay) {
    const auto texts = testing::filesIn(VANTRELL_TEST_DATA, ".steps");
    EXPECT_FALSE(texts.empty());
    for (const auto& file : texts) {
        Steps steps;
        std::istringstream lines(testing::fileText(file));
        for (std::string line; std::getline(lines, line);) {
            SCOPED_TRACE(file.filename().string() + ": " + line);
            if (!line.starts_with("#")) {
                steps.take(QString::fromStdString(line));
            }
        }
    }
}

TEST_F(Steps, CtrlQEndsTheProgram) {
    const QSignalSpy ends(qmlEngine(&house.window()), &QQmlEngine::quit);
    take(QStringLiteral("keys Ctrl+Q"));
    EXPECT_EQ(ends.count(), 1);
}

// The rows that come back are those that have left the sight at the other end.
TEST_F(Steps, TellTheSameOfEachDayAfterALookAtTheLastOne) {
    take(QStringLiteral("click ListItem: Trends Over Time"));
    take(QStringLiteral("tab ListItem: Sat, Nov 21, 2026"));
    const std::string before = spokenText(house.window());
    take(QStringLiteral("keys End"));
    take(QStringLiteral("see ListItem: Fri, Oct 23, 2026"));
    take(QStringLiteral("keys Home"));
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
}

}  // namespace
}  // namespace vantrell
