#pragma once

#include "icons/ImageLoader.h"

#include <memory>
#include <string>

#include <QFuture>
#include <QImage>
#include <QObject>

namespace vantrell {

/// Takes wishes for pictures on any thread to the loader on the main thread.
class ImageDesk : public QObject {
    Q_OBJECT

  public:
    /// The loader may go away before the desk: from then on there are no pictures.
    explicit ImageDesk(ImageLoader& loader);

    /// Ends with the picture, or without a result. Cancel it if nobody wants the picture any more.
    [[nodiscard]] QFuture<QImage> ask(std::string address);

  Q_SIGNALS:
    /// For the loader alone: a connection is what may cross threads while its ends go away.
    void asked(std::shared_ptr<vantrell::ImageOrder> order);
};

}  // namespace vantrell
