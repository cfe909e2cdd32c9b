#include "WindowDriver.h"

#include <chrono>
#include <stdexcept>
#include <vector>

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

namespace vantrell::testing {
namespace {

constexpr std::chrono::milliseconds patience = std::chrono::seconds(40);

using Visit = std::function<bool(QAccessibleInterface&)>;

// The first visible item for which `isIt`.
QAccessibleInterface* findBelow(QAccessibleInterface& item, const Visit& isIt) {
    if (item.state().invisible) {
        return nullptr;
    }
    if (isIt(item)) {
        return &item;
    }
    for (int number = 0; number < item.childCount(); ++number) {
        QAccessibleInterface* child = item.child(number);
        QAccessibleInterface* found = child == nullptr ? nullptr : findBelow(*child, isIt);
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

bool canBePressed(QAccessibleInterface& item) {
    return !item.state().disabled && item.actionInterface() != nullptr &&
           item.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction());
}

// A message handler is a plain function, so what it hears has to lie here.
QStringList& heard() {
    static QStringList complaints;
    return complaints;
}

void listen(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    // Off-screen there is no browser to open, and no window to bring to the front.
    const bool isOffScreen = message.startsWith(QStringLiteral("This plugin does not support"));
    if (type != QtDebugMsg && type != QtInfoMsg && !isOffScreen) {
        heard() += message;
    }
}

}  // namespace

WindowDriver::WindowDriver(QQuickWindow& window) : window_(window) {
    QAccessible::setActive(true);
}

QAccessibleInterface* WindowDriver::find(QAccessible::Role role, const QString& name) const {
    QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window_);
    const Visit isIt = [&](QAccessibleInterface& item) {
        return item.role() == role && item.text(QAccessible::Name).startsWith(name);
    };
    return root == nullptr ? nullptr : findBelow(*root, isIt);
}

bool WindowDriver::sees(QAccessible::Role role, const QString& name) const {
    return find(role, name) != nullptr;
}

void WindowDriver::expectToSee(QAccessible::Role role, const QString& name) {
    waitUntil([&] { return sees(role, name); }, "to see " + name.toStdString());
}

void WindowDriver::click(QAccessible::Role role, const QString& name) {
    expectToSee(role, name);
    // What has just come still finds its place.
    waitForFrame();
    if (QAccessibleInterface* item = find(role, name)) {
        const QPoint middle = window_.mapFromGlobal(item->rect().center());
        QTest::mouseClick(&window_, Qt::LeftButton, {}, middle);
        settle();
    }
}

void WindowDriver::pressAny(int number) {
    std::vector<QAccessibleInterface*> items;
    findBelow(*QAccessible::queryAccessibleInterface(&window_), [&](QAccessibleInterface& item) {
        if (canBePressed(item)) {
            items.push_back(&item);
        }
        return false;
    });
    if (items.empty()) {
        return;
    }
    QAccessibleInterface& item = *items.at(static_cast<std::size_t>(number) % items.size());
    const QPoint middle = window_.mapFromGlobal(item.rect().center());
    if (QRect({}, window_.size()).contains(middle)) {
        QTest::mouseClick(&window_, Qt::LeftButton, {}, middle);
    } else {
        item.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    settle();
}

void WindowDriver::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window_, key, modifiers);
    settle();
}

void WindowDriver::type(const QString& text) {
    for (const QChar letter : text) {
        QTest::keyClick(&window_, letter.toLatin1());
    }
    settle();
}

void WindowDriver::tabTo(QAccessible::Role role, const QString& name) {
    constexpr int mostStops = 60;
    for (int stop = 0; stop < mostStops; ++stop) {
        const QAccessibleInterface* item = find(role, name);
        if (item != nullptr && item->state().focused) {
            return;
        }
        key(Qt::Key_Tab);
    }
    throw std::runtime_error("Tab doesn't reach " + name.toStdString());
}

void WindowDriver::waitUntil(const std::function<bool()>& isSo, const std::string& what) {
    // Without a pause between the events, on which a run of many requests would spend most of its time.
    const QDeadlineTimer end(patience);
    QTimer look;
    look.start(std::chrono::milliseconds(10));
    QEventLoop loop;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (end.hasExpired() || isSo()) {
            loop.quit();
        }
    });
    if (!isSo()) {
        loop.exec();
        if (!isSo()) {
            throw std::runtime_error("waited in vain " + what);
        }
    }
}

void WindowDriver::waitForFrame() {
    bool isPainted = false;
    const auto watch = QObject::connect(&window_, &QQuickWindow::frameSwapped, [&] { isPainted = true; });
    window_.update();
    waitUntil([&] { return isPainted; }, "for a frame");
    QObject::disconnect(watch);
}

void WindowDriver::settle() {
    constexpr int rounds = 3;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

Complaints::Complaints() {
    heard().clear();
    qInstallMessageHandler(listen);
}

Complaints::~Complaints() {
    qInstallMessageHandler(nullptr);
}

std::string Complaints::take() {
    const std::string text = heard().join(QLatin1Char('\n')).toStdString();
    heard().clear();
    return text;
}

}  // namespace vantrell::testing
