#pragma once

#include <vector>

#include "fields/reading.h"

namespace wb::desktop {

/// For each byte of the image of `now` whether one of the fields that it is part of has not been in `before`: with the
/// same label and text, in the same bits.
std::vector<bool> changedBytes(const fields::Reading& before, const fields::Reading& now);

} // namespace wb::desktop
