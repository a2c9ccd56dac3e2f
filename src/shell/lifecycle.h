#pragma once

#include <string>
#include <string_view>

#include "core/workbench.h"

/// How an image comes into being, is opened and closed, and how the windows come and go with it.
namespace wb::shell {

void mnuFileNew(Workbench& workbench);
void mnuFileOpen(Workbench& workbench);
/// What Open does with a file of that name, whose content is in memory already. Gives whether it is a data file and was
/// loaded; all failures are shown.
bool openDataFile(Workbench& workbench, const std::string& name, std::string_view content);
/// The user has dropped a data file on the frame: opens it as Open does once its dialog has given the name. False, and
/// nothing is done, where the frame is out of reach.
bool dropDataFile(Workbench& workbench, const std::string& name);
/// Unloads the active child; what becomes active by that may be closed in the same go. Failures are passed over in
/// silence.
void mnuFileClose(Workbench& workbench);

void frmEDID_Load(Workbench& workbench);
/// Asks to save a modified image and refuses when the save was abandoned. EDIDLoaded is false afterwards in any case.
void frmEDID_Unload(Workbench& workbench, bool& cancel);
void frmCEA_EXT_Unload(Workbench& workbench, bool& cancel);
void frmDocument_Load(Workbench& workbench);
void frmDocument_Unload(Workbench& workbench, bool& cancel);
/// Fits rtftext into the inner size of the report window.
void frmDocument_Resize(Workbench& workbench);

/// Fills brand and model from the cells where they are empty; always true. No command calls it.
bool FillInModelInfo(Workbench& workbench);
/// The joined texts of the monitor name descriptors, or `otherwise` where none of them ends in a line feed.
std::string GetModelName(Workbench& workbench, const std::string& otherwise);
/// IDManufacturerName, or `otherwise` where that is empty.
std::string GetBrandName(Workbench& workbench, const std::string& otherwise);

} // namespace wb::shell
