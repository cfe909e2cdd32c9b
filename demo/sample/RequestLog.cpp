#include "sample/RequestLog.h"

#include <algorithm>
#include <utility>

namespace vantrell::sample {

void RequestLog::record(ServedRequest request) {
    requests_.push_back(std::move(request));
    if (requests_.size() > capacity) {
        requests_.pop_front();
    }
}

std::size_t RequestLog::count(std::string_view target) const {
    return static_cast<std::size_t>(std::ranges::count_if(
        requests_, [target](const ServedRequest& request) { return request.target.starts_with(target); }));
}

}  // namespace vantrell::sample
