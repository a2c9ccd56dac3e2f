#pragma once

#include <optional>

#include "core/workbench.h"

namespace wb::shell {

/// The user picks byte `byte` of the image where something tells of it, such as in the report: the focus goes to its
/// cell. The extension screen is opened by the button of the frame, as the user would. Gives whether the cell, or with
/// Auto Cell Seek the input box of its panel, has the focus then; it has not where no screen holds the byte, where the
/// screen is out of reach, and where the focus is called back.
bool goToByte(Workbench& workbench, int byte);

/// The cell of byte `byte` of the image; null where there is no such byte and where its screen does not exist.
Control* cellOf(const Workbench& workbench, int byte);

/// The byte of the image, 0 to 255, whose cell `control` is; nothing where it is none, or null.
std::optional<int> byteOf(const Control* control);

/// The byte of the image whose cell has the focus; nothing where no cell has it.
std::optional<int> focusedByte(const Workbench& workbench);

} // namespace wb::shell
