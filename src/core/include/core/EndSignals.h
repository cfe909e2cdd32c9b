#pragma once

#include <array>

#include <QObject>
#include <QSocketNotifier>

namespace vantrell {

/// While it lives, SIGTERM, SIGINT and SIGHUP ask the program to quit as its own command does. The second one
/// of a kind ends it at once, should it hang. One that was ignored from the start stays so. One object only.
class EndSignals : public QObject {
    Q_OBJECT

  public:
    EndSignals();
    ~EndSignals() override;

    /// Runs the application's event loop until it quits, not at all if one has arrived already. Returns its
    /// exit code.
    [[nodiscard]] int exec() const;

  private:
    void take();

    std::array<int, 2> pipe_;
    QSocketNotifier notifier_;
    bool hasArrived_ = false;
};

}  // namespace vantrell
