#pragma once

#include <QIcon>

#include "core/screens/frm_main.h"

namespace wb::desktop {

/// The icon of a tool bar button. It is drawn in the colour of the palette's text, at any size.
QIcon toolBarIcon(FrmMain::Picture picture);

} // namespace wb::desktop
