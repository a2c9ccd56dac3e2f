#pragma once

#include "fields/scope.h"

namespace wb::fields {

inline constexpr std::size_t standardTimingSize = 2;

/// The fields of a standard timing, the two bytes that `scope` begins with; its mode goes into the summary. `revision`
/// is that of block 0, by which the aspect ratio is read: before 1.3 there was 1:1 where later there is 16:10.
void readStandardTiming(const Scope& scope, int revision);

/// Whether the two bytes, the first in the upper half, stand for no timing.
bool isUnusedStandardTiming(unsigned code);

} // namespace wb::fields
