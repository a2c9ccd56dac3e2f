#pragma once

#include "core/workbench.h"

/// The panel Hints(3) of the basic display parameters, cells 20 to 24 (VESA E-EDID Standard, Release A, section 3.6).
/// All its handlers do nothing while InFocusDispatch is set, since the decoders set its controls.
namespace wb::block0 {

/// Further steps of the focus dispatch.
void openBasicPanel(Workbench& workbench, int index);

/// Focus on the cell of the field.
void Basic_Click(Workbench& workbench, int index);
void BasicInput_GotFocus(Workbench& workbench, int index);
/// On Enter writes an image size, entered in millimetres, or gamma.
void BasicInput_KeyUp(Workbench& workbench, int index, int keyCode);

/// Sets the kind of video input and clears all other bits of the byte.
void VideoMode_Click(Workbench& workbench, int index);
void Signal_Click(Workbench& workbench, int index);
void Sync_Click(Workbench& workbench, int index);
/// Cleared, it leaves nothing but the digital bit.
void DFP_1_Click(Workbench& workbench, int index);
void DisplayType_Click(Workbench& workbench, int index);
void FSupport_Click(Workbench& workbench, int index);

/// Whether an entry can be gamma; otherwise tells the user.
bool isGammaEntry(Workbench& workbench, double entry);
/// The byte of a gamma from 1.00 to 3.55.
int gammaByte(double entry);

} // namespace wb::block0
