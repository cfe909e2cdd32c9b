#pragma once

#include <functional>
#include <string>

#include <QAccessible>
#include <QQuickWindow>
#include <QString>
#include <QStringList>

namespace vantrell::testing {

/// Uses a window as a person does who sees, hears, clicks and types: things are found by their role and name
/// as a screen reader finds them, and waited for, for at most forty seconds. What isn't there ends
/// the test by std::runtime_error.
class WindowDriver {
  public:
    explicit WindowDriver(QQuickWindow& window);

    void click(QAccessible::Role role, const QString& name);
    /// One of all the things that can be pressed, if there are any; any number will do.
    void pressAny(int number);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void type(const QString& text);
    /// Presses Tab until the item has the focus.
    void tabTo(QAccessible::Role role, const QString& name);

    [[nodiscard]] bool sees(QAccessible::Role role, const QString& name) const;
    void expectToSee(QAccessible::Role role, const QString& name);
    void waitUntil(const std::function<bool()>& isSo, const std::string& what);
    /// Lets what is due happen.
    static void settle();

  private:
    void waitForFrame();
    /// The first visible item whose name is, or begins with, `name`; null if there is none.
    [[nodiscard]] QAccessibleInterface* find(QAccessible::Role role, const QString& name) const;

    QQuickWindow& window_;
};

/// Everything that Qt and QML complain about while this lives; whoever owns it expects none.
class Complaints {
  public:
    Complaints();
    ~Complaints();
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;

    /// One a line.
    [[nodiscard]] std::string take();
};

}  // namespace vantrell::testing
