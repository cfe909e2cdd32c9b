#include "core/PlacementKeeper.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QGuiApplication>
#include <QScreen>

namespace vantrell {
namespace {

// Moving a window changes its place many times a second.
constexpr auto quietTime = std::chrono::milliseconds(500);

bool isOnSomeScreen(const QRect& place) {
    constexpr int visibleEdge = 80;
    const auto screens = QGuiApplication::screens();
    return std::ranges::any_of(screens, [&](const QScreen* screen) {
        const QRect shared = screen->availableGeometry().intersected(place);
        return shared.width() >= visibleEdge && shared.height() >= visibleEdge;
    });
}

}  // namespace

PlacementKeeper::PlacementKeeper(QWindow& window, std::filesystem::path file)
    : window_(window), file_(std::move(file)) {
    saving_.setSingleShot(true);
    saving_.setInterval(quietTime);
    connect(&saving_, &QTimer::timeout, this, &PlacementKeeper::save);
    // A session that ends may take the program with it before anything goes in good order.
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &PlacementKeeper::saveNow,
            Qt::DirectConnection);
    restore();
    connect(&window_, &QWindow::widthChanged, this, &PlacementKeeper::noteChange);
    connect(&window_, &QWindow::heightChanged, this, &PlacementKeeper::noteChange);
    connect(&window_, &QWindow::xChanged, this, &PlacementKeeper::noteChange);
    connect(&window_, &QWindow::yChanged, this, &PlacementKeeper::noteChange);
    connect(&window_, &QWindow::visibilityChanged, this, &PlacementKeeper::noteChange);
}

PlacementKeeper::~PlacementKeeper() {
    saveNow();
}

void PlacementKeeper::restore() {
    placement_ = {.x = window_.x(), .y = window_.y(), .width = window_.width(), .height = window_.height()};
    const auto stored = loadPlacement(file_);
    if (!stored) {
        return;
    }
    placement_ = *stored;
    const QRect place(placement_.x, placement_.y, placement_.width, placement_.height);
    if (isOnSomeScreen(place)) {
        window_.setGeometry(place);
    } else {
        window_.resize(place.size());
    }
    if (placement_.isMaximized) {
        window_.setWindowStates(Qt::WindowMaximized);
    }
}

void PlacementKeeper::noteChange() {
    if (window_.visibility() == QWindow::Windowed) {
        placement_ = {
            .x = window_.x(), .y = window_.y(), .width = window_.width(), .height = window_.height()};
    } else if (window_.visibility() == QWindow::Maximized) {
        placement_.isMaximized = true;
    } else {
        return;
    }
    saving_.start();
}

void PlacementKeeper::saveNow() {
    if (saving_.isActive()) {
        saving_.stop();
        save();
    }
}

// A window that comes up somewhere else the next time is all that a failure costs.
void PlacementKeeper::save() {
    static_cast<void>(savePlacement(file_, placement_));
}

}  // namespace vantrell
