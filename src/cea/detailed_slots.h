#pragma once

#include "core/workbench.h"

/// Detailed timings of the extension block (CEA-861-D, section 7.5): slots of 18 cells from ExtDtdStart on. Decoder and
/// panels are those of block 0 under the rules of this screen.
namespace wb::cea {

/// The number of the last slot before the end of the timing area, counted from 0.
std::int16_t lastSlotOf(const Workbench& workbench);

/// Decodes the slot at CurrentBlockBase. A slot whose first three cells read "000000" is no timing.
void ConvertDetailedTiming(Workbench& workbench);
/// Such a slot: only its heading, by its tag.
void ConvertDetailedTiminga(Workbench& workbench);

/// The branch of the focus dispatch for the cells of the slots. Every slot is shown as a timing, whatever it holds.
void openSlot(Workbench& workbench, int index);

} // namespace wb::cea
