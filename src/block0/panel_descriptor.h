#pragma once

#include "core/workbench.h"

/// The panel Hints(11) of a monitor descriptor (VESA E-EDID Standard, Release A, section 3.10.3). It works on the 18
/// cells from CurrentBlockBase.
namespace wb::block0 {

/// Writes the tag of the block.
void DTa_Click(Workbench& workbench, int index);
/// Switches the secondary GTF curve of a range limits block; tests ModifyEDIDOn only, so that the decoder's setting of
/// the check writes too.
void DTAGTF_Click(Workbench& workbench, int index);

// Focus on the cell of the field.
void DtaOpt_Click(Workbench& workbench, int index);
void DtaOptWhite_Click(Workbench& workbench, int index);
void S_GTF_Click(Workbench& workbench, int index);

/// Switches a white point of a colour point block; tests no flag.
void Windex_Click(Workbench& workbench, int index);

void DTaInput_GotFocus(Workbench& workbench, int index);
/// On Enter writes the entry to the field that the selected tag and field option name.
void DTaInput_KeyUp(Workbench& workbench, int index, int keyCode);

} // namespace wb::block0
