#pragma once

#include "fields/scope.h"

namespace wb::fields {

/// A mode that one bit declares supported.
struct ModeFlag {
    std::string_view name; ///< last part of its path
    std::string_view label;
    int width;  ///< px
    int height; ///< lines of a whole picture
    int hertz;  ///< nominal; of interlaced modes fields a second
    bool interlaced = false;
};

/// A flag for each mode, from the highest bit of byte 0 of the scope down and on; those that are set go into the
/// summary.
void readModeFlags(const Scope& scope, std::span<const ModeFlag> modes);

} // namespace wb::fields
