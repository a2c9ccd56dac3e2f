#pragma once

#include "fields/scope.h"

/// Descriptors, which stand in the slots of 18 bytes that hold no detailed timing. Each function reads one kind of
/// them; `slot` begins with the 18 bytes, `revision` is that of block 0.
namespace wb::fields {

inline constexpr std::uint8_t nameTag = 0xFC;
inline constexpr std::uint8_t rangeLimitsTag = 0xFD;
inline constexpr std::uint8_t textTag = 0xFE;
inline constexpr std::uint8_t serialTextTag = 0xFF;
inline constexpr std::uint8_t dummyTag = 0x10;
/// Tags up to this one are the manufacturer's own.
inline constexpr std::uint8_t lastManufacturersTag = 0x0F;

/// The first revision of block 0 (1 to 4) that has descriptors of that tag, or nothing where no standard gives the tag
/// a meaning.
std::optional<int> firstRevisionOf(std::uint8_t tag);
/// Such as "product name"; "reserved" for a tag without a meaning.
std::string_view descriptorName(std::uint8_t tag);

/// Any descriptor, by its tag.
void readDescriptor(const Scope& slot, int revision);

/// Byte 5 as the version of a descriptor's data, which must be `expected`.
void readDescriptorVersion(const Scope& slot, int expected);
/// The bytes from `offset` on to the end as padding, which must be 0A and blanks.
void readDescriptorPadding(const Scope& slot, std::size_t offset);

void readTextDescriptor(const Scope& slot, int revision);
void readRangeLimits(const Scope& slot, int revision);
void readWhitePoints(const Scope& slot, int revision);
void readMoreStandardTimings(const Scope& slot, int revision);
void readColorManagement(const Scope& slot, int revision);
void readCvtCodes(const Scope& slot, int revision);
void readMoreEstablishedTimings(const Scope& slot, int revision);

} // namespace wb::fields
