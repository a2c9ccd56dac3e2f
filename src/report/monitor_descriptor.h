#pragma once

#include <string>
#include <string_view>

#include "core/workbench.h"

namespace wb::report {

/// Decodes the monitor descriptor (VESA E-EDID Standard, Release A, section 3.10.3) in the 18 cells of frmEDID from
/// CurrentBlockBase: fills the panels Hints(11) and Hints(12) and the report text of CurrentBlockNumber. It writes
/// cells too: those of a white point that is not used, the padding behind two used ones. A failure is shown and ends
/// the decoder with the text as far as it was built and InFocusDispatch still set; among these is a tag that is neither
/// in the table nor below 8, and a colour point while its panel is hidden.
void ConvertDetailedTiminga(Workbench& workbench);

/// The DescriptorFamily of a tag, "FA" to "FF" in upper case; descriptorFamilyCount for any other.
int descriptorFamily(std::string_view tag);

/// The heading of the descriptors of a tag, "FA" to "FF" in upper case; empty for any other.
std::string_view descriptorHeading(std::string_view tag);

/// Appends the text of detailed block `block` (0 to 3) to a name, up to its line feed; a block whose tag is not exactly
/// "FC" has none. True when there was a line feed. A cell that cannot be read is the caller's failure.
bool appendMonitorName(FrmEdid& screen, int block, std::string& name);

} // namespace wb::report
