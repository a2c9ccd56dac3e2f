#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/pictures/painters.h"
#include "desktop/pictures/sketch.h"
#include "desktop/pictures/spectral_locus.h"

namespace wb::desktop {

namespace {

using fields::Point;

struct Coordinate {
    std::string_view name;
    QString words;
    Ink ink;
    Point at;
    int option; ///< number of the option of its x, or none
};

/// Red, green and blue of sRGB (IEC 61966-2-1, table 1).
constexpr std::array<Point, 3> standardTriangle = {{{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}}};
/// What the diagram shows of x and y: all colours there are.
constexpr QSizeF allColours(0.8, 0.9);
constexpr int noOption = -1;

/// The first points are the corners of the triangle; white and the white points of descriptors follow.
constexpr std::size_t primaryCount = 3;

double areaOf(const Point& a, const Point& b, const Point& c) {
    return std::abs((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x)) / 2;
}

std::vector<Coordinate> primariesOf(const fields::Summary& summary) {
    struct Name {
        std::string_view name;
        const char* words;
        Ink ink;
    };
    constexpr std::array<Name, 4> names = {{{"red", "Red", Ink::Red},
                                            {"green", "Green", Ink::Green},
                                            {"blue", "Blue", Ink::Blue},
                                            {"white", "White", Ink::White}}};
    std::vector<Coordinate> points;
    for (std::size_t i = 0; summary.primaries && i < names.size(); ++i) {
        points.push_back(
            {names[i].name, names[i].words, names[i].ink, (*summary.primaries)[i], static_cast<int>(2 * i)});
    }
    return points;
}

/// White points of the descriptors; one with the number 0 is not used.
void addWhitePoints(const Values& values, std::vector<Coordinate>& points) {
    for (const char slot : {'1', '2', '3', '4'}) {
        for (const char which : {'1', '2'}) {
            const Values point = values.inner(std::string("descriptor[") + slot + "].white_point[" + which + "].");
            const auto number = point.number("index");
            if (number && *number > 0) {
                points.push_back({"white point",
                                  "White " + shortNumber(*number, 0),
                                  Ink::White,
                                  {point.numberOr0("x"), point.numberOr0("y")},
                                  noOption});
            }
        }
    }
}

/// The diagram: x and y from 0 on, one as long as the other.
class Diagram {
public:
    Diagram(const QRectF& room, const QSizeF& range)
        : range_(range), place_(fitted(room, range.width() / range.height())), scale_(place_.width() / range.width()) {}

    const QSizeF& range() const { return range_; }
    QPointF at(double x, double y) const { return place_.bottomLeft() + QPointF(x, -y) * scale_; }
    template <class Points>
    QPolygonF at(const Points& points) const {
        QPolygonF polygon;
        for (const Point& point : points) {
            polygon.append(at(point.x, point.y));
        }
        return polygon;
    }

private:
    QSizeF range_;
    QRectF place_;
    double scale_;
};

/// Coordinates that no colour has count up to 1.
QSizeF rangeOf(const std::vector<Coordinate>& points) {
    QSizeF range = allColours;
    for (const Coordinate& point : points) {
        if (point.at.x > range.width() || point.at.y > range.height()) {
            range = {1, 1};
        }
    }
    return range;
}

void drawAxes(Sketch& sketch, const Diagram& diagram) {
    constexpr int steps = 5; // of a fifth each
    const double right = diagram.range().width();
    const double top = diagram.range().height();
    for (int i = 0; i <= steps; ++i) {
        const double value = static_cast<double>(i) / steps;
        const QString number = QString::number(value, 'f', 1);
        if (value <= right) {
            sketch.path(QPolygonF({diagram.at(value, 0), diagram.at(value, top)}), i > 0 ? Ink::Grid : Ink::Faint);
            sketch.words(diagram.at(value, 0), Qt::AlignHCenter | Qt::AlignTop, number, Ink::Faint);
        }
        if (value <= top) {
            sketch.path(QPolygonF({diagram.at(0, value), diagram.at(right, value)}), i > 0 ? Ink::Grid : Ink::Faint);
            if (i > 0) {
                sketch.words(diagram.at(0, value) - QPointF(sketch.lineHeight() / 4, 0),
                             Qt::AlignRight | Qt::AlignVCenter, number, Ink::Faint);
            }
        }
    }
}

QString coordinates(const Point& point) {
    return QString::number(point.x, 'f', 3) + ", " + QString::number(point.y, 'f', 3);
}

std::optional<Pick> pickOf(const Coordinate& point) {
    return point.option == noOption ? std::nullopt : std::optional(Pick{"chkChroma", point.option});
}

QString areaText(const std::vector<Coordinate>& points) {
    const auto& [a, b, c] = standardTriangle;
    const double share = areaOf(points[0].at, points[1].at, points[2].at) / areaOf(a, b, c);
    constexpr double percent = 100;
    return QString("Area %1 % of sRGB").arg(std::lround(share * percent));
}

void drawLegend(Sketch& sketch, const std::vector<Coordinate>& points) {
    std::vector<LegendLine> legend;
    legend.reserve(points.size() + 2);
    for (const Coordinate& point : points) {
        legend.push_back({.words = point.words + ' ' + coordinates(point.at),
                          .swatch = Swatch::Dot,
                          .ink = point.ink,
                          .name = std::string(point.name) + " words",
                          .pick = pickOf(point)});
    }
    legend.push_back({.words = "sRGB, for comparison", .swatch = Swatch::Dashes, .ink = Ink::Faint});
    if (points.size() > primaryCount) {
        legend.push_back({.words = areaText(points), .name = "area"});
    }
    sketch.addLegend(legend);
}

} // namespace

Picture drawChromaticity(const Values& values, const Canvas& canvas) {
    std::vector<Coordinate> points = primariesOf(values.reading().summary);
    addWhitePoints(values, points);
    if (points.empty()) {
        return {};
    }
    const bool hasTriangle = points.size() > primaryCount;
    Sketch sketch(canvas.size, canvas.font);
    drawLegend(sketch, points);
    sketch.leave(sketch.width("0.0 "), sketch.lineHeight() / 2, sketch.width("0.0") / 2, sketch.lineHeight());
    const Diagram diagram(sketch.room(), rangeOf(points));
    drawAxes(sketch, diagram);
    sketch.area(diagram.at(spectralLocus), Ink::None, Ink::Text).name = "locus";
    Shape& standard = sketch.area(diagram.at(standardTriangle), Ink::None, Ink::Faint);
    standard.name = "sRGB";
    standard.dashed = true;
    if (hasTriangle) {
        sketch.area(diagram.at(std::array{points[0].at, points[1].at, points[2].at}), Ink::Screen, Ink::Text).name =
            "triangle";
    }
    QStringList told;
    for (const Coordinate& point : points) {
        Shape& shape = sketch.dot(diagram.at(point.at.x, point.at.y), point.ink);
        shape.name = point.name;
        shape.pick = pickOf(point);
        told += point.words + ": " + coordinates(point.at);
    }
    if (hasTriangle) {
        told += areaText(points);
    }
    return {.name = "Chromaticity diagram", .description = told.join(". ") + '.', .shapes = sketch.take()};
}

} // namespace wb::desktop
