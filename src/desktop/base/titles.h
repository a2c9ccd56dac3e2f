#pragma once

#include <QWidget>
#include <string_view>

namespace wb::desktop {

/// Sets the title of a window. A "[*]" in it is no mark for changes but part of the text, such as a file name.
void setTitle(QWidget& window, std::string_view title);

} // namespace wb::desktop
