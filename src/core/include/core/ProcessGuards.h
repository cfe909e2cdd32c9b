#pragma once

namespace vantrell {

/// What a program that holds a key and a person's books asks of the system before anything else: no memory
/// image is written when it crashes, and a file that may not grow further is a failed write, not the end.
void setProcessGuards();

}  // namespace vantrell
