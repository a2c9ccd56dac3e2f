#pragma once

#include <string>

#include "core/workbench.h"

/// frmHelp tells where the standards can be had; frmAbout shows version and credits and starts the system's
/// information tool.
namespace wb::shell {

void Info_Click(Workbench& workbench);
void mnuHelpAbout_Click(Workbench& workbench);

void frmHelp_Load(Workbench& workbench);
void frmHelp_Command1_Click(Workbench& workbench);

void frmAbout_Load(Workbench& workbench);
void frmAbout_cmdOK_Click(Workbench& workbench);
/// Starts the system's information tool, which the registry tells the path of; a box says so where there is none.
void StartSysInfo(Workbench& workbench);

/// Reads the value `SubKeyRef` of the key `KeyName` (below HKEY_LOCAL_MACHINE) as text; a 32-bit number becomes its
/// decimal text without a sign. False, with an empty text, where key or value cannot be read or the value passes 1,024
/// bytes.
bool GetKeyValue(Workbench& workbench, const std::string& KeyName, const std::string& SubKeyRef, std::string& KeyVal);

} // namespace wb::shell
