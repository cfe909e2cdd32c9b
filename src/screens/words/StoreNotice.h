#pragma once

#include "data/StoreHealth.h"

#include <optional>
#include <string>

#include <QString>

namespace vantrell {

/// What isn't stored and why, or what can't be read, in a sentence; absent while the store is well.
[[nodiscard]] std::optional<std::string> storeProblem(const StoreHealth& health);

/// The same with what it means and what to do, as it stands above every screen; empty while the store is
/// well.
[[nodiscard]] QString storeNotice(const StoreHealth& health);

}  // namespace vantrell
