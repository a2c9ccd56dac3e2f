#pragma once

#include <cstdint>
#include <optional>

#include "fields/reading.h"

namespace wb::fields {

/// Adds the fields, findings and summary of block 0 (E-EDID 1.0 to 1.4).
void readBlock0(Reading& reading);

/// Whether slot `number` of block 0, 0 to 3, holds a detailed timing: it begins with a pixel clock.
bool isTimingSlot(const Image& image, std::size_t number);
/// The kind of the descriptor in slot `number`, 0 to 3, or nothing where that holds a timing.
std::optional<std::uint8_t> descriptorTag(const Image& image, std::size_t number);

} // namespace wb::fields
