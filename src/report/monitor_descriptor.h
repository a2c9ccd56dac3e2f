#pragma once

#include "core/workbench.h"

namespace wb::report {

/// Decodes the monitor descriptor (VESA E-EDID Standard, monitor descriptors) in the 18 cells of frmEDID from
/// CurrentBlockBase: fills the panels Hints(11) and Hints(12) and the report text of CurrentBlockNumber. It writes
/// cells too: those of a white point that is not used, the padding behind two used ones. A failure is shown and ends
/// the decoder with the text as far as it was built and InFocusDispatch still set; among these is a tag that is neither
/// in the table nor below 8, and a colour point while its panel is hidden.
void ConvertDetailedTiminga(Workbench& workbench);

} // namespace wb::report
