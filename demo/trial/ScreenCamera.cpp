#include "trial/ScreenCamera.h"

#include "files/AtomicFile.h"
#include "trial/SpokenText.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include <QAccessible>
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

QAccessibleInterface* pressableBelow(QAccessibleInterface& item, const QString& name) {
    if (item.state().invisible) {
        return nullptr;
    }
    const bool isNamed = item.text(QAccessible::Name).startsWith(name);
    if (isNamed && item.actionInterface() != nullptr &&
        item.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction())) {
        return &item;
    }
    for (int number = 0; number < item.childCount(); ++number) {
        QAccessibleInterface* child = item.child(number);
        QAccessibleInterface* found = child == nullptr ? nullptr : pressableBelow(*child, name);
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

}  // namespace

ScreenCamera::ScreenCamera(FixedAppearance& appearance, std::filesystem::path folder)
    : appearance_(appearance), folder_(std::move(folder)) {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    QAccessible::setActive(true);
    // Nothing is pictured half-way.
    appearance_.setReducesMotion(true);
}

void ScreenCamera::take(QQuickWindow& window, const std::string& name) {
    appearance_.setDark(false);
    takePicture(window, name + "-light.png");
    appearance_.setDark(true);
    takePicture(window, name + "-dark.png");
    appearance_.setDark(false);
    takeText(window, name + ".txt");
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

void ScreenCamera::takeText(QQuickWindow& window, const std::string& fileName) {
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
    const std::filesystem::path file = folder_ / fileName;
    note(!writeAtomically(file, spokenText(window)).has_value(), "could not write " + file.string());
    window.resize(size);
    settle();
}

void ScreenCamera::press(QQuickWindow& window, const QString& name) {
    settle();
    QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window);
    QAccessibleInterface* item = root == nullptr ? nullptr : pressableBelow(*root, name);
    note(item != nullptr, "there is nothing to press that is called " + name.toStdString());
    if (item != nullptr) {
        item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
}

void ScreenCamera::note(bool isDone, const std::string& problem) {
    if (!isDone && !problem_) {
        problem_ = problem;
    }
}

}  // namespace vantrell
