#pragma once

#include <filesystem>

namespace vantrell {

/// Holds a file for one process at a time, for as long as the object lives. The system lets go of it when the
/// process ends, however it ends; the empty file stays.
class FileLock {
  public:
    enum class State {
        held,
        heldElsewhere,
        /// The file can't be made here, or it belongs to somebody else.
        unavailable,
    };

    explicit FileLock(const std::filesystem::path& file);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    [[nodiscard]] State state() const { return state_; }

  private:
    [[nodiscard]] State take() const;

    int descriptor_;
    State state_;
};

}  // namespace vantrell
