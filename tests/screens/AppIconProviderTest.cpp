#include "../window/WindowDriver.h"
#include "screens/AppIconProvider.h"
#include "testing/ScriptedHttp.h"
#include "testing/SlowHttp.h"
#include "testing/TemporaryFolder.h"

#include <memory>

#include <QBuffer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QTest>

#include <gmock/gmock.h>

namespace vantrell {
namespace {

constexpr auto oddAddress = "https://a.test/ä?name=%20x%2Fy&b=1+2#c";

std::string picture() {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

/// A window with one icon. Whatever is complained of meanwhile is a failure.
class IconWindow {
  public:
    IconWindow(HttpClient& http, const testing::TemporaryFolder& folder)
        : loader(std::make_unique<ImageLoader>(http, ImageLoaderSettings{.folder = folder.path()})),
          engine(std::make_unique<QQmlEngine>()),
          view(std::make_unique<QQuickView>(engine.get(), nullptr)) {
        engine->addImageProvider(QLatin1StringView(AppIconProvider::name), new AppIconProvider(*loader));
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->resize(100, 100);
    }
    ~IconWindow() { EXPECT_EQ(complaints_.take(), ""); }
    IconWindow(const IconWindow&) = delete;
    IconWindow& operator=(const IconWindow&) = delete;

    void show(std::string_view address) {
        QQmlComponent component(engine.get());
        component.setData("import QtQuick\nImage { sourceSize: Qt.size(56, 56) }", {});
        item = component.create();
        view->setContent({}, nullptr, item);
        item->setProperty("source", AppIconProvider::source(address));
        view->show();
    }
    [[nodiscard]] bool isReady() const { return item->property("status").toInt() == 1; }

  private:
    testing::Complaints complaints_;

  public:
    std::unique_ptr<ImageLoader> loader;
    std::unique_ptr<QQmlEngine> engine;
    std::unique_ptr<QQuickView> view;
    QObject* item = nullptr;  // the view's
};

TEST(AppIconProvider, ShowsThePictureAtTheSizeThatIsNeededAndNothingWhereThereIsNone) {
    const struct {
        const char* name;
        HttpResult response;
        int width;
        QColor colour;
    } cases[] = {
        {"found", HttpResponse{200, picture()}, 56, Qt::red},
        {"not found", HttpResponse{404, picture()}, 0, Qt::white},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const testing::TemporaryFolder folder;
        testing::ScriptedHttp http;
        http.answers = {c.response};
        IconWindow window(http, folder);
        window.show(oddAddress);
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.isReady(); }, 10'000));
        EXPECT_EQ(http.requests.at(0).url, oddAddress);
        EXPECT_EQ(window.item->property("implicitWidth"), c.width);
        EXPECT_EQ(window.view->grabWindow().pixelColor(50, 50), c.colour);
    }
}

TEST(AppIconProvider, ClosesInAnyOrderWhileAPictureIsUnderWay) {
    for (const int moment : {0, 1, 2}) {
        for (const bool loaderFirst : {true, false}) {
            const testing::TemporaryFolder folder;
            testing::SlowHttp http({200, picture()});
            IconWindow window(http, folder);
            // Qt Quick keeps what it showed for all windows, by address.
            window.show("https://a.test/" + std::to_string(moment) + (loaderFirst ? "a" : "b"));
            if (moment > 0) {
                EXPECT_TRUE(QTest::qWaitFor([&] { return http.requests.size() == 1; }, 10'000));
            }
            if (moment > 1) {
                http.clock.advance(std::chrono::seconds(1));
            }
            if (loaderFirst) {
                window.loader.reset();
                EXPECT_TRUE(QTest::qWaitFor([&] { return window.isReady(); }, 10'000));
            }
            window.view.reset();
            window.engine.reset();
        }
    }
}

}  // namespace
}  // namespace vantrell
