#pragma once

#include "fields/scope.h"

namespace wb::fields {

/// The name of the kind of block that a tag stands for, such as "CTA-861 extension"; "unknown extension" for one that
/// no standard names.
std::string_view extensionName(std::uint8_t tag);

/// Adds the fields, findings and summary of block `index`, which is not block 0.
void readExtension(Reading& reading, std::size_t index);

// The readers of each kind: all of a block but its last byte, the check sum. `block` begins with its tag.
void readCta(const Scope& block);
void readVideoTimingBlock(const Scope& block);
void readBlockMap(const Scope& block);

/// Bytes from `offset` up to the check sum of the block, which should be 0; `code` tells where they are not. `after`
/// names what they follow.
void readPadding(const Scope& block, std::size_t offset, std::string_view code, std::string_view after);

} // namespace wb::fields
