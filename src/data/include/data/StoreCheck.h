#pragma once

#include "base/Worker.h"
#include "data/ModelContext.h"

#include <stop_token>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// Looks through the store's file on the worker and tells the context's health what is damaged. To be awaited
/// after the first load and before anything is fetched; saves wait for its end. `context` must outlive it
/// unless it is cancelled.
[[nodiscard]] QCoro::Task<> checkStore(ModelContext& context, Worker& worker, std::stop_token cancel);

}  // namespace vantrell
