#include "desktop/drawing/colours.h"

#include <utility>

namespace wb::desktop {

namespace {

int mixed(int first, int second, double share) {
    return static_cast<int>(first * share + second * (1 - share));
}

QColor mixed(const QColor& first, const QColor& second, double share) {
    return {mixed(first.red(), second.red(), share), mixed(first.green(), second.green(), share),
            mixed(first.blue(), second.blue(), share)};
}

/// The palette with a text of what is disabled that stands out from its ground by that share of the usual.
QPalette withDisabledText(QPalette palette, double strength) {
    struct Pair {
        QPalette::ColorRole text;
        QPalette::ColorRole background;
    };
    constexpr Pair pairs[] = {{QPalette::WindowText, QPalette::Window},
                              {QPalette::Text, QPalette::Base},
                              {QPalette::ButtonText, QPalette::Button}};
    for (const Pair& pair : pairs) {
        palette.setColor(QPalette::Disabled, pair.text,
                         mixed(palette.color(QPalette::Active, pair.text),
                               palette.color(QPalette::Active, pair.background), strength));
    }
    return palette;
}

} // namespace

CellColours cellColours(CellColour colour, const QPalette& palette) {
    constexpr QRgb blue = 0xFF0000C0;
    constexpr QRgb blueOnDark = 0xFF9DB8FF;
    constexpr int middleLightness = 128;

    switch (colour) {
        case CellColour::Group:
            return {QColor(groupColour), QColor(blue)};
        case CellColour::Field:
            return {QColor(fieldColour), QColor(blue)};
        case CellColour::Window:
            break;
    }
    const QColor base = palette.color(QPalette::Base);
    return {base, QColor(base.lightness() < middleLightness ? blueOnDark : blue)};
}

QPalette withReadableDisabledText(QPalette palette) {
    constexpr double strength = 0.58;
    return withDisabledText(std::move(palette), strength);
}

QPalette withLiveDisabledText(QPalette palette) {
    return withDisabledText(std::move(palette), 1);
}

QPalette disabledTextsOf(const QPalette& palette) {
    QPalette texts;
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        texts.setColor(QPalette::Disabled, role, palette.color(QPalette::Disabled, role));
    }
    return texts;
}

} // namespace wb::desktop
