#include <QCoreApplication>

#include <gmock/gmock.h>

/// Every suite runs with an application object, since timers and sockets need its event loop.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
