#pragma once

#include "core/workbench.h"

/// Start and end of the program.
namespace wb::shell {

/// The title of the frame and of the About box, with its final blank.
inline constexpr const char* programTitle = "EDID / DDC Field Workbench ";

/// The entry point: splash, frame, and the wait for the splash timer. Failures are shown here.
void Main(Workbench& workbench);

void frmMain_Load(Workbench& workbench);
/// Unloads the children in the order of their creation, hidden ones too; a child that refuses sets `cancel`. Otherwise
/// saves the position of a frame that is not minimised, and ends the program.
void frmMain_Unload(Workbench& workbench, bool& cancel);
/// First activation of the frame: the fallback of an empty base location.
void frmMain_Activate(Workbench& workbench);

/// Unloads the frame and ends the program, even if a child refused to close.
void mnuFileExit(Workbench& workbench);

} // namespace wb::shell
