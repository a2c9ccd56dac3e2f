#pragma once

#include "fields/scope.h"

namespace wb::fields {

/// Bytes of a detailed timing descriptor.
inline constexpr std::size_t detailedTimingSize = 18;

/// The fields of a detailed timing descriptor, which `scope` begins with; its mode goes into the summary. The same 18
/// bytes stand in block 0, in CTA-861 extensions and elsewhere.
void readDetailedTiming(const Scope& scope, bool native);

} // namespace wb::fields
