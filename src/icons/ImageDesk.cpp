#include "icons/ImageDesk.h"

#include <utility>

namespace vantrell {

ImageDesk::ImageDesk(ImageLoader& loader) {
    connect(this, &ImageDesk::asked, &loader, &ImageLoader::load, Qt::QueuedConnection);
}

QFuture<QImage> ImageDesk::ask(std::string address) {
    auto order = std::make_shared<ImageOrder>();
    order->address = std::move(address);
    order->picture.start();
    auto picture = order->picture.future();
    Q_EMIT asked(std::move(order));
    return picture;
}

}  // namespace vantrell
