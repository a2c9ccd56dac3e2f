#pragma once

#include <optional>

#include "core/workbench.h"

namespace wb::desktop {

/// The byte of the image whose cell has the focus of the program; nothing where none has.
std::optional<std::size_t> focusedByte(const Workbench& workbench);
/// The cell of a byte of the image; null where its screen does not exist.
const Control* cellOf(const Workbench& workbench, std::size_t byte);

} // namespace wb::desktop
