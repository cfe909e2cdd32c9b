#pragma once

#include "net/HttpFailure.h"

#include <QString>

namespace vantrell {

/// Why a request has no answer, as a sentence.
[[nodiscard]] QString failureText(HttpFailure failure);

}  // namespace vantrell
