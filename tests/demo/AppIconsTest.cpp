#include "ServiceFixture.h"
#include "icons/AppIconStore.h"
#include "icons/ImageDesk.h"
#include "platform/QtHttpClient.h"
#include "testing/MemoryDefaults.h"
#include "testing/TemporaryFolder.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFuture>

namespace vantrell::testing {
namespace {

QImage shown(const QFuture<QImage>& picture) {
    const QDeadlineTimer deadline(std::chrono::seconds{10});
    while (!picture.isFinished() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return picture.isResultReadyAt(0) ? picture.result() : QImage();
}

using AppIcons = ServiceFixture;

TEST_F(AppIcons, AreFoundFetchedAndKeptForTheNextStart) {
    QtHttpClient http;
    MemoryDefaults defaults;
    const TemporaryFolder folder;
    const Locale germany(LocaleNames{"de_DE.UTF-8", "C", "C", "C", "C"});
    const std::vector<std::int64_t> apps{9900000101, 9900000106, 9900000107, 9900000110};
    for (const bool isFirst : {true, false}) {
        service.log().clear();
        AppIconStore store({http, defaults, germany}, service.origin());
        ImageLoader loader(http, {.folder = folder.path(), .plainOrigin = service.origin()});
        ImageDesk desk(loader);
        QCoro::waitFor(store.loadIcons(apps));
        ASSERT_EQ(store.urls().size(), 3U) << "one was withdrawn";
        EXPECT_EQ(shown(desk.ask(store.urls().at(9900000101))).size(), QSize(100, 100));
        EXPECT_EQ(shown(desk.ask(store.urls().at(9900000106))).size(), QSize(60, 60))
            << "there is no larger one";
        EXPECT_EQ(shown(desk.ask(store.urls().at(9900000110))).size(), QSize(100, 100))
            << "not sold in Germany";
        EXPECT_EQ(service.log().count("/lookup"), 2U)
            << "the withdrawn one is looked for again at each start";
        EXPECT_EQ(service.log().count("/icon/"), isFirst ? 3U : 0U);
    }
}

}  // namespace
}  // namespace vantrell::testing
