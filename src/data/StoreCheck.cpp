#include "data/StoreCheck.h"

#include "FileCheck.h"

#include <functional>
#include <utility>

namespace vantrell {

QCoro::Task<> checkStore(ModelContext& context, Worker& worker, std::stop_token cancel) {
    using Damage = std::optional<std::string>;
    context.holdSaves(true);
    std::function<Damage()> look = [check = context.fileCheck()] { return check->run(); };
    const auto damage = co_await worker.run(std::move(look), cancel);
    if (cancel.stop_requested()) {
        co_return;
    }
    context.holdSaves(false);
    if (damage && *damage) {
        context.health().addDamage(**damage);
    }
    // Told by the store's health; what is pending waits for the next save.
    std::ignore = context.save();
}

}  // namespace vantrell
