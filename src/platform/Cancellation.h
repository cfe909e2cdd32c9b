#pragma once

#include <functional>
#include <memory>

namespace vantrell {

/// The waiting side of a cancellation: handed by value to whatever waits, which ends its wait early when
/// the source cancels. A default token is never cancelled. Main thread only.
class CancelToken {
  public:
    /// Keeps a callback registered for as long as it lives.
    class Registration {
      public:
        Registration() = default;
        explicit Registration(std::shared_ptr<std::function<void()>> callback)
            : callback_(std::move(callback)) {}

      private:
        std::shared_ptr<std::function<void()>> callback_;
    };

    CancelToken() = default;

    [[nodiscard]] bool isCancelled() const;

    /// Calls `callback` once when the source cancels; at once if it has already. The callback may end the
    /// caller's own wait, and must not start a new one.
    [[nodiscard]] Registration onCancel(std::function<void()> callback) const;

  private:
    friend class CancelSource;
    struct State;
    explicit CancelToken(std::shared_ptr<State> state) : state_(std::move(state)) {}

    std::shared_ptr<State> state_;
};

/// The owning side: cancels on request, and at the latest when it is destroyed.
class CancelSource {
  public:
    CancelSource();
    ~CancelSource();
    CancelSource(const CancelSource&) = delete;
    CancelSource& operator=(const CancelSource&) = delete;

    [[nodiscard]] CancelToken token() const;
    void cancel();

  private:
    std::shared_ptr<CancelToken::State> state_;
};

}  // namespace vantrell
