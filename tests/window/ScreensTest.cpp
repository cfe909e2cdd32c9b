#include "WindowDriver.h"
#include "WindowHouse.h"
#include "trial/SpokenText.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTcpServer>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Complaints;
using testing::WindowDriver;
using testing::WindowHouse;

constexpr std::array destinations{Destination::dashboard, Destination::apps,    Destination::byDay,
                                  Destination::history,   Destination::payouts, Destination::settings};

/// What a screen reader finds on each screen, one after the other.
std::string walkThrough(WindowHouse& house) {
    std::string heard;
    for (const Destination::Value destination : destinations) {
        house.windows().root().select(destination);
        WindowDriver::settle();
        house.window().grabWindow();
        heard += spokenText(house.window());
    }
    return heard;
}

// A row may go while the pointer rests on it, and the delay of its help runs on.
TEST(Screens, ShowHelpOnlyInAWindow) {
    Complaints complaints;
    WindowHouse house;
    house.show();
    QQmlComponent component(qmlEngine(&house.window()));
    component.setData(
        "import QtQuick\nimport Vantrell\n"
        "Item { property alias help: hint; Hint { id: hint; delay: 1; shown: true; text: 'Help' } }",
        {});
    const std::unique_ptr<QObject> made(component.create());
    auto* item = qobject_cast<QQuickItem*>(made.get());
    ASSERT_TRUE(item != nullptr) << component.errorString().toStdString();
    QTest::qWait(20);
    EXPECT_EQ(complaints.take(), "");
    item->setParentItem(house.window().contentItem());
    QObject* help = made->property("help").value<QObject*>();
    EXPECT_TRUE(QTest::qWaitFor([help] { return help->property("opened").toBool(); }));
    item->setParentItem(nullptr);
    WindowDriver::settle();
    EXPECT_EQ(complaints.take(), "");
}

// Every text of a report, a service or a file may be anything: it is shown as it stands, cut to a bearable
// length, and nothing that it names is fetched.
TEST(Screens, ShowHostileTextsAsPlainText) {
    QTcpServer trap;
    ASSERT_TRUE(trap.listen(QHostAddress::LocalHost));
    const std::string address = "http://127.0.0.1:" + std::to_string(trap.serverPort());
    std::string marks = "a";
    for (int mark = 0; mark < 1'000'000; ++mark) {
        marks += "\xCC\x81";
    }
    const struct {
        std::string text;
        std::string shown;  ///< what has to be heard of it
    } cases[] = {
        {"<img src='" + address + "/x.png'><b>bold</b>", "<b>bold</b>"},
        {"![x](" + address + "/y.png) [a](" + address + ")", "![x]("},
        {"one\ntwo\tthree\x01\x1B[31m\xE2\x80\xAE", "one two three[31m"},
        {marks, "a\xCC\x81"},
        {std::string(10'000'000, 'W'), "WWWW"},
        {"&amp;&lt;script&gt;", "&amp;&lt;script&gt;"},
    };
    for (const auto& [text, shown] : cases) {
        SCOPED_TRACE(shown);
        Complaints complaints;
        WindowHouse house;
        house.sold("2026-11-21", text, text);
        house.show();
        house.windows().root().dashboard()->selectedDay()->open("2026-11-21", {});
        const std::string heard = walkThrough(house);
        EXPECT_NE(heard.find(shown), std::string::npos);
        EXPECT_LT(heard.size(), 1'000'000U);
        EXPECT_EQ(complaints.take(), "");
        for (const HttpRequest& request : house.http().requests) {
            EXPECT_THAT(request.url, ::testing::AnyOf(::testing::StartsWith("https://lookup.example/"),
                                                      "https://rates.example/v6/latest/USD"));
        }
    }
    EXPECT_FALSE(trap.hasPendingConnections());
}

}  // namespace
}  // namespace vantrell
