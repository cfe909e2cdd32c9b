#include "icons/ImageLoader.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QUrl>

namespace vantrell {
namespace {

constexpr qsizetype memoryBytes = qsizetype{16} << 20U;
constexpr int maxRequests = 4;
constexpr std::size_t maxAddressLength = 2048;
constexpr auto pictureIdleTimeout = std::chrono::seconds(30);
constexpr auto pictureTotalTimeout = std::chrono::minutes(2);
constexpr std::size_t maxPictureBytes = std::size_t{5} << 20U;
constexpr std::size_t maxErrorBytes = std::size_t{64} << 10U;

bool isEncrypted(const std::string& address) {
    const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
    return url.isValid() && url.scheme() == QLatin1StringView("https") && !url.host().isEmpty();
}

HttpRequest pictureRequest(const std::string& address) {
    // A redirect never leads to an address without encryption: not from https, and from plain http nowhere.
    return {.url = address,
            .redirects = isEncrypted(address) ? Redirects::follow : Redirects::refuse,
            .idleTimeout = pictureIdleTimeout,
            .totalTimeout = pictureTotalTimeout,
            .maxBodyBytes = maxPictureBytes,
            .maxErrorBodyBytes = maxErrorBytes};
}

void answer(ImageOrder& order, const QImage& picture) {
    if (!picture.isNull()) {
        order.picture.addResult(picture);
    }
    order.picture.finish();
}

}  // namespace

ImageLoader::ImageLoader(HttpClient& http, const ImageLoaderSettings& settings)
    : http_(http),
      plainPrefix_(settings.plainOrigin.empty() ? std::string() : settings.plainOrigin + '/'),
      memory_(memoryBytes),
      folder_(settings.folder, settings.maxFolderBytes) {
    worker_.setMaxThreadCount(1);
    connect(this, &ImageLoader::foundInFolder, this, &ImageLoader::deliverOrFetch, Qt::QueuedConnection);
    connect(this, &ImageLoader::decoded, this, &ImageLoader::deliver, Qt::QueuedConnection);
}

ImageLoader::~ImageLoader() {
    life_.end();
    worker_.clear();
    worker_.waitForDone();
}

void ImageLoader::load(std::shared_ptr<ImageOrder> order) {
    const std::string address = order->address;
    if (const QImage* known = memory_.object(QByteArray::fromStdString(address))) {
        answer(*order, *known);
        return;
    }
    if (!isAllowed(address)) {
        answer(*order, {});
        return;
    }
    auto& orders = waiting_[address];
    orders.push_back(std::move(order));
    if (orders.size() == 1) {
        worker_.start([this, address] { Q_EMIT foundInFolder(address, folder_.read(address)); });
    }
}

bool ImageLoader::isAllowed(const std::string& address) const {
    const bool isPlain = !plainPrefix_.empty() && address.starts_with(plainPrefix_);
    return address.size() <= maxAddressLength && (isPlain || isEncrypted(address));
}

void ImageLoader::deliverOrFetch(const std::string& address, const QImage& picture) {
    if (!picture.isNull()) {
        deliver(address, picture);
        return;
    }
    toFetch_.push_back(address);
    fetchMore();
}

void ImageLoader::fetchMore() {
    while (requests_ < maxRequests && !toFetch_.empty()) {
        const std::string address = std::move(toFetch_.front());
        toFetch_.pop_front();
        if (isWanted(address)) {
            ++requests_;
            tasks_.spawn(fetch(address));
        } else {
            waiting_.erase(address);
        }
    }
}

/// Of a long list that is scrolled through, most pictures are out of sight before their turn comes.
bool ImageLoader::isWanted(const std::string& address) const {
    return !std::ranges::all_of(waiting_.at(address),
                                [](const auto& order) { return order->picture.isCanceled(); });
}

QCoro::Task<> ImageLoader::fetch(std::string address) {
    const std::stop_token life = life_.token();
    HttpResult result = co_await http_.get(pictureRequest(address), life);
    if (!life.stop_requested()) {
        fetched(address, std::move(result));
    }
}

void ImageLoader::fetched(const std::string& address, HttpResult result) {
    --requests_;
    auto* response = std::get_if<HttpResponse>(&result);
    if (response != nullptr && response->status == 200) {
        worker_.start([this, address, bytes = std::move(response->body)] {
            Q_EMIT decoded(address, folder_.keep(address, bytes));
        });
    } else {
        deliver(address, {});
    }
    fetchMore();
}

void ImageLoader::deliver(const std::string& address, const QImage& picture) {
    if (!picture.isNull()) {
        memory_.insert(QByteArray::fromStdString(address), std::make_unique<QImage>(picture).release(),
                       picture.sizeInBytes());
    }
    const auto orders = waiting_.extract(address);
    for (const auto& order : orders.mapped()) {
        answer(*order, picture);
    }
}

}  // namespace vantrell
