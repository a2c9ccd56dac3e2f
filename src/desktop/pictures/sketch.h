#pragma once

#include <QFontMetricsF>

#include "desktop/pictures/shape.h"

namespace wb::desktop {

/// How what a line of the legend tells of looks in the picture.
enum class Swatch : std::uint8_t { None, Line, Dashes, Dot, Box };

/// A line that explains something in the picture.
struct LegendLine {
    QString words;
    Swatch swatch = Swatch::None;
    Ink ink = Ink::Text; ///< of the swatch
    std::string name{};  ///< of the shape of the words
    std::optional<Pick> pick{};
    bool faint = false; ///< the words
};

/// The shapes of a picture while it is being made. A reference to a shape is good until the next one is added.
class Sketch {
public:
    Sketch(const QSizeF& size, const QFontMetricsF& font) : room_(QPointF(0, 0), size), font_(font) {}

    /// What is left for the drawing.
    const QRectF& room() const { return room_; }
    /// Takes room away on the four sides.
    void leave(double left, double top, double right, double bottom) { room_.adjust(left, top, -right, -bottom); }
    double lineHeight() const { return font_.height(); }
    double width(const QString& words) const { return font_.horizontalAdvance(words); }

    Shape& area(const QPolygonF& corners, Ink fill, Ink line = Ink::None);
    Shape& path(const QPolygonF& steps, Ink line);
    Shape& dot(const QPointF& middle, Ink fill);
    /// Words whose box touches the point: beside it by the horizontal alignment (AlignLeft: they begin there), above,
    /// below or around it by the vertical one (AlignTop: they hang from it).
    Shape& words(const QPointF& point, Qt::Alignment alignment, const QString& words, Ink ink = Ink::Text);

    /// Puts the lines beside the drawing or, where the room is high, below it, and takes their room away. Lines that
    /// find no room are left out.
    void addLegend(const std::vector<LegendLine>& lines);
    /// The same beside the drawing in any case.
    void addLegendBeside(const std::vector<LegendLine>& lines);

    std::vector<Shape> take() { return std::move(shapes_); }

private:
    double widthOf(const std::vector<LegendLine>& lines) const;
    void addLegendAt(QPointF at, const std::vector<LegendLine>& lines);
    void addLegendLine(const LegendLine& line, const QPointF& left);
    void addSwatch(const LegendLine& line, const QRectF& place);

    QRectF room_;
    QFontMetricsF font_;
    std::vector<Shape> shapes_;
};

/// The rectangle of that ratio of width to height that fills the room as far as it goes, in its middle.
QRectF fitted(const QRectF& room, double ratio);

} // namespace wb::desktop
