#pragma once

#include <string>

#include "core/workbench.h"

namespace wb::files {

/// Writes the cells of the open image as flat text, each with a blank behind it, to a file that the user names; with an
/// extension (byte 126 by its decimal prefix) both blocks. The name becomes that of the image. Each failure of the
/// writing is shown, and the export goes on with the next cell.
void ExportHex_Click(Workbench& workbench);

/// What it writes where nothing fails.
std::string hexFileContent(Workbench& workbench);

} // namespace wb::files
