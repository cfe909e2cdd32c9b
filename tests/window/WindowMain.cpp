#include <QGuiApplication>
#include <QQuickWindow>

#include <gmock/gmock.h>

/// As every suite, but with windows that the processor paints off-screen.
int main(int argc, char** argv) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
