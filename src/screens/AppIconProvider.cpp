#include "screens/AppIconProvider.h"

#include <atomic>

#include <QFutureWatcher>
#include <QPainter>
#include <QUrl>

namespace vantrell {
namespace {

constexpr qreal cornerRadius = 0.22;  // of the side

QImage scaledDown(const QImage& picture, const QSize& wanted) {
    const bool isSmaller =
        !wanted.isEmpty() && (wanted.width() < picture.width() || wanted.height() < picture.height());
    return isSmaller ? picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : picture;
}

// Done here, since drawing without a graphics card can cut only along straight lines.
QImage rounded(const QImage& picture) {
    QImage shape(picture.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(picture));
    painter.drawRoundedRect(shape.rect(), picture.width() * cornerRadius, picture.height() * cornerRadius);
    return shape;
}

/// Lives on the thread of the engine that reads images.
class AppIconResponse final : public QQuickImageResponse {
  public:
    AppIconResponse(const QFuture<QImage>& picture, const QSize& wanted) : wanted_(wanted) {
        connect(&watcher_, &QFutureWatcherBase::finished, this, [this] { end(); });
        watcher_.setFuture(picture);
    }

    // An error would be a warning in the log; without a texture the image is just empty.
    [[nodiscard]] QQuickTextureFactory* textureFactory() const override {
        const auto picture = watcher_.future();
        return picture.isResultReadyAt(0) ? QQuickTextureFactory::textureFactoryForImage(
                                                rounded(scaledDown(picture.result(), wanted_)))
                                          : nullptr;
    }

    void cancel() override {
        watcher_.cancel();
        end();
    }

  private:
    /// The engine deletes the response once it is told the end, and cancels from whatever thread it closes
    /// on.
    void end() {
        if (!ended_.exchange(true)) {
            Q_EMIT finished();
        }
    }

    const QSize wanted_;
    std::atomic<bool> ended_ = false;
    QFutureWatcher<QImage> watcher_;
};

}  // namespace

AppIconProvider::AppIconProvider(ImageLoader& loader) : desk_(loader) {}

QString AppIconProvider::source(std::string_view address) {
    const auto bytes = QByteArray::fromRawData(address.data(), static_cast<qsizetype>(address.size()));
    return QStringLiteral("image://%1/%2")
        .arg(QLatin1StringView(name), QString::fromLatin1(bytes.toPercentEncoding()));
}

QString AppIconProvider::sourceFor(std::int64_t appID, const AppIconStore& icons) {
    const auto known = icons.urls().find(appID);
    return known == icons.urls().end() ? QString() : source(known->second);
}

QQuickImageResponse* AppIconProvider::requestImageResponse(const QString& id, const QSize& requestedSize) {
    const auto address = QByteArray::fromPercentEncoding(id.toUtf8()).toStdString();
    return new AppIconResponse(desk_.ask(address), requestedSize);
}

}  // namespace vantrell
