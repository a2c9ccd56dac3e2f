#pragma once

#include <string>

#include "core/workbench.h"

/// The save commands: the open image as a data file.
namespace wb::files {

/// Writes the open image to CurrentFileName, asking for a name where there is none. Clears EDIDModified when the file
/// is whole.
void FileSave(Workbench& workbench);
/// What FileSave would leave in the file of the open image.
std::string dataFileContent(Workbench& workbench);
/// Asks for a name, makes it the image's and saves. After a No at the replace question nothing is written, but the new
/// name stays, and the next save replaces that file.
void FileSaveAs(Workbench& workbench);

/// Offers to save a modified image. False when the command that asks is to stop: the save was wanted and abandoned.
bool offerSave(Workbench& workbench);

/// The question before a file is replaced.
bool askReplace(Workbench& workbench, const std::string& name);

} // namespace wb::files
