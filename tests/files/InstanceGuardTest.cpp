#include "files/InstanceGuard.h"
#include "testing/Golden.h"
#include "testing/TemporaryFolder.h"

#include <chrono>
#include <future>

#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;

/// Wakes from a second thread, as another process would, while events are handled here.
bool wakes(const InstanceGuard& second) {
    auto answer = std::async(std::launch::async, [&second] { return second.wakeFirst(10s); });
    return QTest::qWaitFor([&] { return answer.wait_for(0s) == std::future_status::ready; }, 20'000) &&
           answer.get();
}

std::filesystem::path socketIn(const testing::TemporaryFolder& folder) {
    return testing::filesIn(folder.path(), ".socket").at(0);
}

TEST(InstanceGuard, ASecondStartWakesTheFirstHoweverTheFolderIsSpelled) {
    const testing::TemporaryFolder meetingPlace;
    const testing::TemporaryFolder data;
    InstanceGuard first(data.path() / "store", meetingPlace.path());
    const QSignalSpy wakened(&first, &InstanceGuard::wakened);
    const InstanceGuard second(data.path() / "other" / ".." / "store", meetingPlace.path());
    EXPECT_TRUE(first.isFirst());
    EXPECT_FALSE(second.isFirst());
    EXPECT_TRUE(wakes(second));
    EXPECT_TRUE(wakes(second));
    EXPECT_EQ(wakened.count(), 2);
    EXPECT_TRUE(InstanceGuard(data.path(), meetingPlace.path()).isFirst());

    const auto permissions = std::filesystem::status(socketIn(meetingPlace)).permissions();
    EXPECT_EQ(permissions & (std::filesystem::perms::group_all | std::filesystem::perms::others_all),
              std::filesystem::perms::none);
}

TEST(InstanceGuard, WhatADeadProgramLeftBehindIsTakenOver) {
    const testing::TemporaryFolder meetingPlace;
    std::filesystem::path socket;
    {
        const InstanceGuard dead("/data", meetingPlace.path());
        socket = socketIn(meetingPlace);
    }
    // The end of a process in good order removes the socket, so one without a listener takes its place.
    QLocalServer abandoned;
    ASSERT_TRUE(abandoned.listen(QString::fromStdString(meetingPlace / "abandoned")));
    std::filesystem::rename(meetingPlace / "abandoned", socket);
    abandoned.close();
    ASSERT_TRUE(std::filesystem::is_socket(socket));

    const InstanceGuard next("/data", meetingPlace.path());
    const InstanceGuard second("/data", meetingPlace.path());
    EXPECT_TRUE(next.isFirst());
    EXPECT_TRUE(wakes(second));
}

TEST(InstanceGuard, WhoAnswersInOtherWordsIsNotTheFirst) {
    const testing::TemporaryFolder meetingPlace;
    const InstanceGuard hidden("/data", meetingPlace.path());
    const auto socket = socketIn(meetingPlace);
    std::filesystem::remove(socket);
    QLocalServer squatter;
    ASSERT_TRUE(squatter.listen(QString::fromStdString(socket.string())));
    QObject::connect(&squatter, &QLocalServer::newConnection, &squatter, [&] {
        auto* caller = squatter.nextPendingConnection();
        caller->write("come in, come in, come in\n");
        caller->flush();
    });
    EXPECT_FALSE(wakes(InstanceGuard("/data", meetingPlace.path())));
    EXPECT_TRUE(squatter.isListening());
}

TEST(InstanceGuard, AFirstThatHangsIsGivenUpOn) {
    const testing::TemporaryFolder meetingPlace;
    const InstanceGuard hanging("/data", meetingPlace.path());
    const InstanceGuard second("/data", meetingPlace.path());
    EXPECT_FALSE(second.wakeFirst(50ms));
}

TEST(InstanceGuard, EverybodyIsFirstWhereNothingCanBeMade) {
    const InstanceGuard one("/data", "/nowhere");
    const InstanceGuard other("/data", "/nowhere");
    EXPECT_TRUE(one.isFirst());
    EXPECT_TRUE(other.isFirst());
    EXPECT_FALSE(other.wakeFirst(1ms));
}

}  // namespace
}  // namespace vantrell
