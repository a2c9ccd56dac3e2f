#pragma once

#include <QColor>
#include <QPalette>

#include "core/control.h"

namespace wb::desktop {

constexpr QRgb groupColour = 0xFFFFC0C0;
constexpr QRgb fieldColour = 0xFFFFFF80;

struct CellColours {
    QColor background;
    QColor text;
};

/// The colours of a cell. The two highlight colours are fixed and carry dark text with any palette.
CellColours cellColours(CellColour colour, const QPalette& palette);

/// The palette with a stronger colour for the text of what is disabled, which is there to be read all the same.
QPalette withReadableDisabledText(QPalette palette);
/// The palette of a panel: while editing is off all panels are disabled, but what they show is true and looks so.
QPalette withLiveDisabledText(QPalette palette);

} // namespace wb::desktop
