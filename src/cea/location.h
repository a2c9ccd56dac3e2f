#pragma once

#include <cstdint>

#include "core/base/numbers.h"

namespace wb::cea {

/// A cell number counted from the start of a block: 16-bit arithmetic, so that it can be an Overflow.
inline int location(int start, int offset) {
    return int16From(std::int64_t{start} + offset);
}

} // namespace wb::cea
