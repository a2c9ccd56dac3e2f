#pragma once

#include "fields/extensions.h"

namespace wb::fields {

/// Bytes of a detailed timing of DisplayID, of type I and of type VII.
inline constexpr std::size_t displayIdTimingSize = 20;

/// The fields of such a timing, which `scope` begins with; its mode goes into the summary. Clocks count in units of
/// `kilohertz`: 10 in type I, 1 in type VII.
void readDisplayIdTiming(const Scope& scope, int kilohertz);

/// A version of two digits in one byte, such as 1.3.
void describeVersion(const Scope& scope, std::uint64_t raw, Field& field);

/// A DisplayID section in an extension block (VESA DisplayID 1.3 and 2.0).
void readDisplayId(const Scope& block, CtaExtensions& before);

} // namespace wb::fields
