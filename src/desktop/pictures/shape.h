#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a picture beside a panel consists of, before any pixel is painted.
namespace wb::desktop {

/// What a shape is painted with; the palette says in which colour.
enum class Ink : std::uint8_t {
    None,
    Text,
    Ground, ///< hides what is below
    Faint,  ///< axes, and what the image does not have
    Grid,   ///< lines that help to read
    Screen,
    Blanking,
    Sync,
    Border,
    Red,
    Green,
    Blue,
    White,
    Inside,  ///< within limits
    Outside, ///< beyond them
    First,   ///< of the colours that tell several things apart, `toldApart` of them
    Second,
    Third,
    Fourth,
    Fifth,
    Sixth,
};
inline constexpr int toldApart = 6;

/// A control of the screen beside whose panel the picture stands.
struct Pick {
    std::string_view control;
    int index;
};

struct Shape {
    enum class Kind : std::uint8_t { Area, Path, Dot, Words };

    Kind kind;
    QPolygonF points{}; ///< in pixels of the picture: corners, steps, the middle of a dot, the box of words
    Ink fill = Ink::None;
    Ink line = Ink::None;
    bool dashed = false;
    QString words{};
    std::string name{};         ///< of what it stands for; empty for what only helps to read it
    std::optional<Pick> pick{}; ///< what a click on it clicks
};

/// A picture without shapes is none: the image has nothing to show there.
struct Picture {
    QString name{};        ///< for those who hear it
    QString description{}; ///< its numbers in words
    std::vector<Shape> shapes{};
};

/// The topmost shape at that point that can be picked, or null.
const Shape* pickedAt(const Picture& picture, const QPointF& point);

} // namespace wb::desktop
