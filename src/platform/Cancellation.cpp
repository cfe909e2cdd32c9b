#include "platform/Cancellation.h"

#include <utility>
#include <vector>

namespace vantrell {

struct CancelToken::State {
    bool cancelled = false;
    std::vector<std::weak_ptr<std::function<void()>>> callbacks;
};

bool CancelToken::isCancelled() const {
    return state_ && state_->cancelled;
}

CancelToken::Registration CancelToken::onCancel(std::function<void()> callback) const {
    if (!state_) {
        return {};
    }
    if (state_->cancelled) {
        callback();
        return {};
    }
    auto shared = std::make_shared<std::function<void()>>(std::move(callback));
    std::erase_if(state_->callbacks, [](const auto& known) { return known.expired(); });
    state_->callbacks.push_back(shared);
    return Registration(std::move(shared));
}

CancelSource::CancelSource() : state_(std::make_shared<CancelToken::State>()) {}

CancelSource::~CancelSource() {
    cancel();
}

CancelToken CancelSource::token() const {
    return CancelToken(state_);
}

void CancelSource::cancel() {
    if (std::exchange(state_->cancelled, true)) {
        return;
    }
    // A callback may drop other registrations, so each is looked at only when its turn comes.
    const auto callbacks = std::exchange(state_->callbacks, {});
    for (const auto& weak : callbacks) {
        if (const auto callback = weak.lock()) {
            (*callback)();
        }
    }
}

}  // namespace vantrell
