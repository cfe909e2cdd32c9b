#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace vantrell::testing {

/// A real secret service with an empty, unlocked keyring in a folder of its own, on the session bus of this
/// process, which must not be the user's. One a process: the client library ties itself to the first.
class Keyring {
  public:
    Keyring();
    ~Keyring();
    Keyring(const Keyring&) = delete;
    Keyring& operator=(const Keyring&) = delete;

    /// Locks the default collection. Nobody is there to show a prompt.
    void lock();
    /// While the service is held it is there and gives no answer.
    void hold();
    void letGo();

  private:
    QTemporaryDir folder_;
    QProcess daemon_;
};

}  // namespace vantrell::testing
