#pragma once

#include <string>

#include "core/workbench.h"
#include "forms/writers.h"

namespace wb::shell {

/// Asks for a name and writes the whole open image in that form: the cells as they are, check sums included, and the
/// blocks that they do not hold as they were loaded. Cells that are no image are told in a box, before a name is asked.
void exportImage(Workbench& workbench, const forms::WrittenForm& form);

/// The open image in that form, for the clipboard; empty where the cells are no image, which is told in a box.
std::string imageText(Workbench& workbench, const forms::WrittenForm& form);

/// What the cell that has the focus means by the standards: for each of its fields a line "LABEL: VALUE", in UTF-8.
/// Empty where no cell has the focus.
std::string fieldText(const Workbench& workbench);

} // namespace wb::shell
