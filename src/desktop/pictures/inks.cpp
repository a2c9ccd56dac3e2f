#include "desktop/pictures/inks.h"

#include <array>

namespace wb::desktop {

namespace {

/// On a light and on a dark ground.
struct Pair {
    Ink ink;
    QRgb onLight;
    QRgb onDark;
};

constexpr std::array pairs = {
    Pair{Ink::Screen, 0x402F6FB7, 0x505F9FE7}, Pair{Ink::Blanking, 0x30808080, 0x50A0A0A0},
    Pair{Ink::Sync, 0xC0D07A10, 0xC0F0A040},   Pair{Ink::Border, 0xA08050B0, 0xA0B088E0},
    Pair{Ink::Red, 0xFFD02020, 0xFFFF6060},    Pair{Ink::Green, 0xFF20903A, 0xFF50D070},
    Pair{Ink::Blue, 0xFF2050D0, 0xFF7898FF},   Pair{Ink::White, 0xFFFFFFFF, 0xFFFFFFFF},
    Pair{Ink::Inside, 0xFF1F7F3F, 0xFF60D080}, Pair{Ink::Outside, 0xFFC02020, 0xFFFF7070},
    Pair{Ink::First, 0xFF2060B0, 0xFF70B0FF},  Pair{Ink::Second, 0xFFB05A00, 0xFFFFB060},
    Pair{Ink::Third, 0xFF1F7F3F, 0xFF60D080},  Pair{Ink::Fourth, 0xFFA02878, 0xFFFF88D0},
    Pair{Ink::Fifth, 0xFF6040B0, 0xFFB8A0FF},  Pair{Ink::Sixth, 0xFF007880, 0xFF50D0D8},
};

QColor between(const QColor& first, const QColor& second, float share) {
    return QColor::fromRgbF(first.redF() * share + second.redF() * (1 - share),
                            first.greenF() * share + second.greenF() * (1 - share),
                            first.blueF() * share + second.blueF() * (1 - share));
}

} // namespace

QColor inkColour(Ink ink, const QPalette& palette) {
    constexpr float faintness = 0.6F;
    constexpr float gridStrength = 0.15F;
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    for (const Pair& pair : pairs) {
        if (pair.ink == ink) {
            return QColor::fromRgba(ground.lightness() < text.lightness() ? pair.onDark : pair.onLight);
        }
    }
    switch (ink) {
        case Ink::Ground:
            return ground;
        case Ink::Faint:
            return between(text, ground, faintness);
        case Ink::Grid:
            return between(text, ground, gridStrength);
        default:
            return text;
    }
}

} // namespace wb::desktop
