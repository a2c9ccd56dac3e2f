#pragma once

#include "fields/reading.h"

namespace wb::fields {

/// Adds the fields, findings and summary of block 0 (E-EDID 1.0 to 1.4).
void readBlock0(Reading& reading);

} // namespace wb::fields
