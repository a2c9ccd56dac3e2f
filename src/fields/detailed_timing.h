#pragma once

#include <optional>

#include "fields/scope.h"

namespace wb::fields {

/// Bytes of a detailed timing descriptor.
inline constexpr std::size_t detailedTimingSize = detailedBlockSize;

/// The numbers of a detailed timing that checks and modes need; lengths in pixels and lines of a field.
struct DetailedTiming {
    std::int64_t clockKilohertz;
    int hActive;
    int hBlank; ///< begins with front porch and sync
    int hFrontPorch;
    int hSync;
    int vActive;
    int vBlank;
    int vFrontPorch;
    int vSync;
    int widthMillimetres;
    int heightMillimetres;
    bool interlaced;
};

/// The timing that `scope` begins with, which may be nonsense.
DetailedTiming detailedTimingOf(const Scope& scope);

/// Fields a second, and lines a second in kilohertz; nothing where the timing has no pixels.
std::optional<double> verticalHertz(const DetailedTiming& timing);
std::optional<double> horizontalKilohertz(const DetailedTiming& timing);

/// Tells what is wrong with the numbers of the timing that `scope` begins with.
void checkDetailedTiming(const Scope& scope, const DetailedTiming& timing);

/// The fields of a detailed timing descriptor, which `scope` begins with; its mode goes into the summary. The same 18
/// bytes stand in block 0, in CTA-861 extensions and elsewhere.
void readDetailedTiming(const Scope& scope, bool native);

} // namespace wb::fields
