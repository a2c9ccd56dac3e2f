#pragma once

#include "fields/scope.h"

namespace wb::fields {

/// Bytes of a CVT code, which tells a mode by its lines, aspect ratio and rates.
inline constexpr std::size_t cvtCodeSize = 3;

/// The fields of the CVT code that `scope` begins with; its modes go into the summary, one for each rate.
void readCvtCode(const Scope& scope);

} // namespace wb::fields
