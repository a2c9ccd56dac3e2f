#pragma once

#include "fields/reading.h"

namespace wb::fields {

/// The name of the kind of block that a tag stands for, such as "CTA-861 extension"; "unknown extension" for one that
/// no standard names.
std::string_view extensionName(std::uint8_t tag);

/// Adds the fields, findings and summary of block `index`, which is not block 0.
void readExtension(Reading& reading, std::size_t index);

} // namespace wb::fields
