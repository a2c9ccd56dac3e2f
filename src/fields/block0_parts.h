#pragma once

#include "fields/block0.h"
#include "fields/detailed_timing.h"
#include "fields/scope.h"

/// What block 0 is made of. Each function adds the fields of one structure, the findings that it alone tells and its
/// part of the summary. `base` begins with block 0; `revision` is that of revisionOf.
namespace wb::fields {

inline constexpr std::size_t slotCount = detailedBlockCount;
/// First byte of slot `number` (0 to 3), which holds a detailed timing or a descriptor.
constexpr std::size_t slotStart(std::size_t number) {
    return detailedBlockBase(static_cast<int>(number));
}

/// Revision of version 1 by whose rules block 0 is read, 0 to 4. Later and unknown ones are read as 1.4.
int revisionOf(const Image& image);
/// Bits of the features (E-EDID 1.4, 3.6.4).
enum class Feature : std::uint8_t {
    ContinuousFrequency = 0x01, ///< since 1.4; before that default GTF
    PreferredTiming = 0x02,
    StandardColor = 0x04,
};
bool hasFeature(const Image& image, Feature feature);
/// Whether the video input is digital.
bool isDigital(const Image& image);
/// The scope of slot `number`: "detailed[1]" to "detailed[4]" for timings, "descriptor[1]" to "descriptor[4]" else.
Scope slotScope(const Scope& base, std::size_t number);

/// The timing in slot `number`, which may be nonsense, or nothing where that holds a descriptor.
std::optional<DetailedTiming> timingInSlot(const Scope& base, std::size_t number);

void readVendor(const Scope& base, int revision);
void readBasicDisplay(const Scope& base, int revision);
void readChromaticity(const Scope& base);
void readEstablishedTimings(const Scope& base);
void readStandardTimings(const Scope& base, int revision);

/// The size of the screen for the summary, and findings about sizes that disagree.
void checkSizes(const Scope& base);
/// Findings about what stands in more than one structure, and about what is missing.
void checkBlock0(const Scope& base, int revision);
/// Those about the four slots: their kinds and their order.
void checkSlots(const Scope& base, int revision);

} // namespace wb::fields
