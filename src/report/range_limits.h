#pragma once

#include "report/descriptor_block.h"

namespace wb::report {

/// The payload of a range limits descriptor: DTAFrame(0), and of its secondary timing formula frmS_GTF(0).
void convertRangeLimits(const DescriptorBlock& block);

} // namespace wb::report
