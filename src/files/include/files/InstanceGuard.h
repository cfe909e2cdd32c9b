#pragma once

#include "files/FileLock.h"

#include <chrono>
#include <filesystem>

#include <QLocalServer>
#include <QObject>

namespace vantrell {

/// Lets one program run for a data folder, and a second start wake it. A courtesy only: where files or
/// sockets can't be made everybody is the first, and the store's own lock decides.
class InstanceGuard final : public QObject {
    Q_OBJECT

  public:
    /// `meetingPlace` is where the programs find one another.
    explicit InstanceGuard(const std::filesystem::path& dataFolder,
                           const std::filesystem::path& meetingPlace = hostMeetingPlace());

    [[nodiscard]] bool isFirst() const { return lock_.state() != FileLock::State::heldElsewhere; }
    /// Whether the first answered within `patience`, for which this blocks. It may hang, or still be
    /// starting; and who answers in other words, or belongs to another user, isn't the first.
    [[nodiscard]] bool wakeFirst(std::chrono::milliseconds patience = std::chrono::seconds(10)) const;

    /// The user's folder for what lives as long as the session, else the one for temporary files.
    [[nodiscard]] static std::filesystem::path hostMeetingPlace();

  Q_SIGNALS:
    /// In the first: somebody started the program once more.
    void wakened();

  private:
    void listen();
    void answer();

    std::filesystem::path name_;
    FileLock lock_;
    QLocalServer server_;
};

}  // namespace vantrell
