#pragma once

#include "icons/AppIconStore.h"
#include "icons/ImageDesk.h"

#include <string_view>

#include <QQuickAsyncImageProvider>
#include <QString>

namespace vantrell {

/// Lets QML show the pictures of an ImageLoader: an Image whose source is `AppIconProvider::source(address)`.
/// It is added to the engine, which owns it from then on, under the name `AppIconProvider::name`.
///
/// Pictures come with rounded corners. Where there is none the Image gets ready with an implicit width of 0,
/// and nothing is logged.
class AppIconProvider final : public QQuickAsyncImageProvider {
  public:
    static constexpr const char* name = "appicon";

    /// The loader may go away before the provider: from then on there are no pictures.
    explicit AppIconProvider(ImageLoader& loader);

    [[nodiscard]] static QString source(std::string_view address);
    /// That of an app; empty where none is known.
    [[nodiscard]] static QString sourceFor(std::int64_t appID, const AppIconStore& icons);

    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

  private:
    ImageDesk desk_;
};

}  // namespace vantrell
