#include "base/ProgramVersion.h"

namespace vantrell {

std::string_view programVersion() {
    return VANTRELL_VERSION;
}

std::string_view programBuild() {
    return VANTRELL_BUILD;
}

}  // namespace vantrell
