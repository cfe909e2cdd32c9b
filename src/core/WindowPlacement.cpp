#include "core/WindowPlacement.h"

#include "files/AtomicFile.h"
#include "files/RegularFile.h"

#include <algorithm>
#include <array>
#include <variant>

#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell {
namespace {

constexpr QLatin1StringView xKey("x");
constexpr QLatin1StringView yKey("y");
constexpr QLatin1StringView widthKey("width");
constexpr QLatin1StringView heightKey("height");
constexpr QLatin1StringView maximizedKey("maximized");

constexpr int leastWidth = 640;
constexpr int leastHeight = 480;
constexpr int most = 16384;
constexpr std::uintmax_t mostBytes = 4096;

int within(int low, const QJsonValue& value, int high) {
    return static_cast<int>(std::clamp<double>(value.toDouble(), low, high));
}

}  // namespace

std::optional<WindowPlacement> loadPlacement(const std::filesystem::path& file) {
    const auto read = readRegularFile(file, mostBytes);
    const auto* bytes = std::get_if<std::string>(&read);
    if (bytes == nullptr) {
        return std::nullopt;
    }
    const auto values = QJsonDocument::fromJson(QByteArray::fromStdString(*bytes)).object();
    const auto isNumber = [&values](QLatin1StringView key) { return values.value(key).isDouble(); };
    if (!std::ranges::all_of(std::array{xKey, yKey, widthKey, heightKey}, isNumber)) {
        return std::nullopt;
    }
    return WindowPlacement{within(-most, values.value(xKey), most), within(-most, values.value(yKey), most),
                           within(leastWidth, values.value(widthKey), most),
                           within(leastHeight, values.value(heightKey), most),
                           values.value(maximizedKey).toBool()};
}

std::optional<std::string> savePlacement(const std::filesystem::path& file,
                                         const WindowPlacement& placement) {
    const QJsonObject values{{xKey, placement.x},
                             {yKey, placement.y},
                             {widthKey, placement.width},
                             {heightKey, placement.height},
                             {maximizedKey, placement.isMaximized}};
    return writeAtomically(file, QJsonDocument(values).toJson().toStdString(), Readers::ownerOnly);
}

}  // namespace vantrell
