#include "desktop/drawing/palettes.h"

#include <span>

#include "desktop/drawing/colours.h"

namespace wb::desktop {

namespace {

struct Shade {
    QPalette::ColorRole role;
    QRgb colour;
};

/// The shades of edges follow from the colour of buttons.
QPalette paletteOf(QRgb button, QRgb window, std::span<const Shade> shades) {
    QPalette palette{QColor(button), QColor(window)};
    for (const Shade& shade : shades) {
        palette.setColor(shade.role, QColor(shade.colour));
    }
    return withReadableDisabledText(palette);
}

} // namespace

QPalette lightPalette() {
    static constexpr Shade shades[] = {
        {QPalette::WindowText, 0xFF000000},      {QPalette::Base, 0xFFFFFFFF},
        {QPalette::AlternateBase, 0xFFF4F4F4},   {QPalette::Text, 0xFF000000},
        {QPalette::ButtonText, 0xFF000000},      {QPalette::Highlight, 0xFF2A6FB0},
        {QPalette::HighlightedText, 0xFFFFFFFF}, {QPalette::Link, 0xFF0000C0},
        {QPalette::ToolTipBase, 0xFFFFFFDC},     {QPalette::ToolTipText, 0xFF000000},
        {QPalette::PlaceholderText, 0xFF6A6A6A},
    };
    return paletteOf(0xFFEFEFEF, 0xFFEFEFEF, shades);
}

QPalette darkPalette() {
    static constexpr Shade shades[] = {
        {QPalette::WindowText, 0xFFE8E8E8},      {QPalette::Base, 0xFF1E1E1E},
        {QPalette::AlternateBase, 0xFF262626},   {QPalette::Text, 0xFFE8E8E8},
        {QPalette::ButtonText, 0xFFE8E8E8},      {QPalette::Highlight, 0xFF3A6EA8},
        {QPalette::HighlightedText, 0xFFFFFFFF}, {QPalette::Link, 0xFF8AB4F8},
        {QPalette::ToolTipBase, 0xFF3C3C3C},     {QPalette::ToolTipText, 0xFFE8E8E8},
        {QPalette::PlaceholderText, 0xFF9E9E9E},
    };
    return paletteOf(0xFF3C3C3C, 0xFF2D2D2D, shades);
}

} // namespace wb::desktop
