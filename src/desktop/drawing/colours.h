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

    bool operator==(const CellColours& other) const = default;
};

/// The colours of a cell. The two highlight colours are fixed and carry dark text with any palette.
CellColours cellColours(CellColour colour, const QPalette& palette);

/// The palette with a stronger colour for the text of what is disabled, which is there to be read all the same.
QPalette withReadableDisabledText(QPalette palette);
/// The palette of a panel: while editing is off all panels are disabled, but what they show is true and looks so.
QPalette withLiveDisabledText(QPalette palette);

/// Of the palette the texts of what is disabled, and nothing else. For widgets that follow their window in all other
/// colours: one that is given a whole palette hears of no other one.
QPalette disabledTextsOf(const QPalette& palette);

} // namespace wb::desktop
