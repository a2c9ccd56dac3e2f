#pragma once

#include "core/base/image.h"
#include "core/workbench.h"

namespace wb::cli {

/// The bytes of the cells of the open image: block 0 and, where its byte 126 announces one, the extension block. A cell
/// that is no byte is a CliError, and so is an announced block that the program does not hold.
Image editedImage(const Workbench& workbench);

} // namespace wb::cli
