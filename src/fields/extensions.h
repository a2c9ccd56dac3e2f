#pragma once

#include <vector>

#include "fields/cta_data_blocks.h"

namespace wb::fields {

/// The name of the kind of block that a tag stands for, such as "CTA-861 extension"; "unknown extension" for one that
/// no standard names.
std::string_view extensionName(std::uint8_t tag);

/// Adds the fields, findings and summary of all blocks but block 0.
void readExtensions(Reading& reading);

/// A CTA-861 extension and what it told.
struct CtaExtension {
    Scope block;
    CtaState state;
};
using CtaExtensions = std::vector<CtaExtension>;

/// The rules that hold between the parts of all CTA-861 extensions of an image together.
void checkCta(const CtaExtensions& extensions);

// The readers of each kind: all of a block but its last byte, the check sum. `block` begins with its tag; `before` are
// the CTA-861 extensions before it, to which readCta adds its own.
void readCta(const Scope& block, CtaExtensions& before);
void readVideoTimingBlock(const Scope& block, CtaExtensions& before);
void readBlockMap(const Scope& block, CtaExtensions& before);

/// Bytes from `offset` up to the check sum of the block, which should be 0; `code` tells where they are not. `after`
/// names what they follow.
void readPadding(const Scope& block, std::size_t offset, std::string_view code, std::string_view after);

} // namespace wb::fields
