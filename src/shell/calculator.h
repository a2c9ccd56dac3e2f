#pragma once

#include <cstdint>
#include <string_view>

#include "core/workbench.h"

/// frmHexCalculator: a four-function calculator. The number is always held as decimal text in CurrentCell; the mode
/// changes only the view in Display and which keys work.
namespace wb::shell {

/// The menu entry and the tool bar key: shows the calculator beside the image, unless it is up.
void HexCalculator_Click(Workbench& workbench);

/// The key of that index was pressed. A failure is shown and ends the key press, with the cells as they are then.
void frmHexCalculator_Command1_Click(Workbench& workbench, int index);
/// Mode 0 hexadecimal, 1 decimal, 2 binary.
void frmHexCalculator_Option1_Click(Workbench& workbench, int index);
/// Presses the key that the key code stands for, if it is enabled.
void frmHexCalculator_KeyUp(Workbench& workbench, int keyCode);
void frmHexCalculator_Unload(Workbench& workbench, bool& cancel);

/// The number that upper-case hexadecimal digits spell. Other characters add nothing, but their place counts. Above
/// 2147483647 it is an Overflow.
std::int32_t HexTextToNumber(std::string_view text);

} // namespace wb::shell
