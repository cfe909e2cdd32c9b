#include "trial/ScreenCamera.h"

#include "files/AtomicFile.h"
#include "trial/SpokenText.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include <QBuffer>
#include <QCoreApplication>
#include <QEventLoop>
#include <QImage>
#include <QQuickItem>
#include <QTimer>

namespace vantrell {
namespace {

// How much taller the tallest scrolling area under `item` would have to be to show all that it holds.
qreal missingHeight(const QQuickItem& item) {
    qreal missing = 0;
    for (const QQuickItem* child : item.childItems()) {
        if (!child->isVisible()) {
            continue;
        }
        const QVariant content = child->property("contentHeight");
        const bool scrolls = child->inherits("QQuickFlickable") && content.isValid();
        missing = std::max(missing, scrolls ? content.toReal() - child->height() : missingHeight(*child));
    }
    return missing;
}

}  // namespace

ScreenCamera::ScreenCamera(FixedAppearance& appearance, std::filesystem::path folder)
    : appearance_(appearance), folder_(std::move(folder)) {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    // Nothing is pictured half-way.
    appearance_.setReducesMotion(true);
}

void ScreenCamera::take(QQuickWindow& window, const std::string& name) {
    appearance_.setDark(false);
    takePicture(window, name + "-light.png");
    appearance_.setDark(true);
    takePicture(window, name + "-dark.png");
    appearance_.setDark(false);
    const std::filesystem::path file = folder_ / (name + ".txt");
    note(!writeAtomically(file, textOf(window)).has_value(), "could not write " + file.string());
}

// Pictures of apps are decoded on another thread, and layouts settle over several rounds.
void ScreenCamera::settle() {
    constexpr auto longEnough = std::chrono::milliseconds(120);
    QEventLoop loop;
    QTimer::singleShot(longEnough, &loop, &QEventLoop::quit);
    loop.exec();
}

void ScreenCamera::takePicture(QQuickWindow& window, const std::string& fileName) {
    settle();
    const std::filesystem::path file = folder_ / fileName;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const bool isMade = buffer.open(QIODevice::WriteOnly) && window.grabWindow().save(&buffer, "PNG");
    note(isMade && !writeAtomically(file, bytes.toStdString()), "could not write " + file.string());
}

std::string ScreenCamera::textOf(QQuickWindow& window) {
    constexpr int mostRounds = 8;
    const QSize size = window.size();
    for (int round = 0; round < mostRounds; ++round) {
        const qreal missing = missingHeight(*window.contentItem());
        if (missing < 1) {
            break;
        }
        window.resize(size.width(), window.height() + static_cast<int>(std::ceil(missing)));
        settle();
    }
    std::string text = spokenText(window);
    window.resize(size);
    settle();
    return text;
}

void ScreenCamera::note(bool isDone, const std::string& problem) {
    if (!isDone && !problem_) {
        problem_ = problem;
    }
}

}  // namespace vantrell
