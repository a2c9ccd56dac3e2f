#include "core/version.h"

namespace wb {

const char* programVersion() noexcept {
    return WORKBENCH_VERSION;
}

} // namespace wb
