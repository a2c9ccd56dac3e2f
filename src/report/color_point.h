#pragma once

#include "report/descriptor_block.h"

namespace wb::report {

/// The payload of a colour point descriptor: DTAFrame(1). Gives the focus to DTaInput, which is a failure while its
/// panel is hidden.
void convertColorPoint(const DescriptorBlock& block);

} // namespace wb::report
