#pragma once

#include <QIcon>
#include <string_view>

namespace wb::desktop {

/// The icon of a tool bar button by its key. It is drawn in the colour of the palette's text, at any size.
QIcon toolBarIcon(std::string_view key);

} // namespace wb::desktop
