#pragma once

#include "base/Lifetime.h"
#include "base/TaskScope.h"
#include "icons/PictureFolder.h"
#include "net/HttpClient.h"

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QCache>
#include <QImage>
#include <QObject>
#include <QPromise>
#include <QThreadPool>

namespace vantrell {

/// The wish for a picture. The promise is kept with the picture, or ends without a result; it ends as well
/// when the order is dropped on the way.
struct ImageOrder {
    std::string address;
    QPromise<QImage> picture;
};

struct ImageLoaderSettings {
    std::filesystem::path folder;  ///< where pictures are kept; made when it is needed
    std::uintmax_t maxFolderBytes = std::uintmax_t{20} << 20U;
    /// A scheme and a host with no path from which pictures may come without encryption; none if empty.
    std::string plainOrigin;
};

/// Gives the picture at an address: from memory, from a folder, or over https. Few requests are under way at
/// once, and one for an address however many want it; pictures are decoded on a worker. There is no failure,
/// only no picture. Main thread only.
class ImageLoader : public QObject {
    Q_OBJECT

  public:
    /// `http` must outlive the loader.
    ImageLoader(HttpClient& http, const ImageLoaderSettings& settings);
    /// Orders that are open end without a picture.
    ~ImageLoader() override;

    void load(std::shared_ptr<ImageOrder> order);

  Q_SIGNALS:
    /// From the worker to the loader itself: a null picture is none.
    void foundInFolder(const std::string& address, const QImage& picture);
    void decoded(const std::string& address, const QImage& picture);

  private:
    [[nodiscard]] bool isAllowed(const std::string& address) const;
    void deliverOrFetch(const std::string& address, const QImage& picture);
    void fetchMore();
    [[nodiscard]] bool isWanted(const std::string& address) const;
    [[nodiscard]] QCoro::Task<> fetch(std::string address);
    void fetched(const std::string& address, HttpResult result);
    void deliver(const std::string& address, const QImage& picture);

    HttpClient& http_;
    const std::string plainPrefix_;
    QCache<QByteArray, QImage> memory_;
    std::map<std::string, std::vector<std::shared_ptr<ImageOrder>>> waiting_;
    std::deque<std::string> toFetch_;
    int requests_ = 0;
    TaskScope tasks_;
    Lifetime life_;
    PictureFolder folder_;  // used on the worker alone
    QThreadPool worker_;
};

}  // namespace vantrell
