#include <algorithm>
#include <array>

#include "desktop/pictures/painters.h"
#include "desktop/pictures/sketch.h"

namespace wb::desktop {

namespace {

/// One direction of a timing, in the order of the beam: sync, back porch, active area, front porch. Pixels or lines.
struct Axis {
    double active;
    double blanking;
    double frontPorch;
    double sync;
    double border; ///< on each side of the active area; part of the blanking

    /// What is left of the blanking; a timing that makes no sense has none.
    double backPorch() const { return std::max(0.0, blanking - frontPorch - sync); }
    double start() const { return sync + backPorch(); }
    double end() const { return start() + active; }
    double total() const { return active + blanking; }
    /// As far as the picture goes: beyond the total where porch and sync are longer than the blanking.
    double length() const { return end() + frontPorch; }
};

Axis axisOf(const Values& values, std::string_view direction) {
    const auto number = [&](std::string_view name) { return values.numberOr0(std::string(direction).append(name)); };
    return {number("active"), number("blank"), number("front_porch"), number("sync_width"), number("border")};
}

struct Timing {
    Axis h;
    Axis v;
    double lineHeight; ///< in widths of a pixel
    double clockMegahertz;
};

Timing timingOf(const Values& values) {
    return {axisOf(values, "h_"), axisOf(values, "v_"), values.flag("interlaced") ? 2.0 : 1.0,
            values.numberOr0("pixel_clock")};
}

/// From pixels and lines to the picture.
class Raster {
public:
    Raster(const QRectF& room, const Timing& timing)
        : place_(fitted(room, timing.h.length() / (timing.v.length() * timing.lineHeight))),
          pixel_(place_.width() / timing.h.length()),
          line_(pixel_ * timing.lineHeight) {}

    QPolygonF box(double left, double top, double right, double bottom) const {
        return QPolygonF(QRectF(place_.topLeft() + QPointF(left * pixel_, top * line_),
                                place_.topLeft() + QPointF(right * pixel_, bottom * line_)));
    }

private:
    QRectF place_;
    double pixel_;
    double line_;
};

/// A line of the table: what it tells of, the options of its two numbers (there is one for most), and the numbers.
struct Row {
    const char* label;
    std::string_view name;
    Ink ink;
    int hOption;
    int vOption;
    double (*number)(const Axis&);
};

constexpr int noOption = -1;
constexpr std::array rows = {
    Row{"Active", "active", Ink::Screen, 1, 3, [](const Axis& axis) { return axis.active; }},
    Row{"Blanking", "blanking", Ink::Blanking, 2, 4, [](const Axis& axis) { return axis.blanking; }},
    Row{"Front porch", "front porch", Ink::None, 5, 7, [](const Axis& axis) { return axis.frontPorch; }},
    Row{"Sync", "sync", Ink::Sync, 6, 8, [](const Axis& axis) { return axis.sync; }},
    Row{"Back porch", "back porch", Ink::None, noOption, noOption, [](const Axis& axis) { return axis.backPorch(); }},
    Row{"Border", "border", Ink::Border, 9, 10, [](const Axis& axis) { return axis.border; }},
    Row{"Total", "total", Ink::None, noOption, noOption, [](const Axis& axis) { return axis.total(); }},
};

QString number(double value) {
    return QString::number(value, 'f', 0);
}

void addNumber(Sketch& sketch, const QPointF& right, const Row& row, std::string_view direction, double value,
               int option) {
    Shape& shape = sketch.words(right, Qt::AlignRight | Qt::AlignTop, number(value));
    shape.name = std::string(direction) + std::string(row.name);
    if (option != noOption) {
        shape.pick = Pick{"DT", option};
    }
}

/// The numbers, in a column each for pixels and lines.
void addTable(Sketch& sketch, const Timing& timing) {
    std::vector<LegendLine> lines = {{.words = ""}};
    for (const Row& row : rows) {
        lines.push_back(
            {.words = row.label, .swatch = row.ink == Ink::None ? Swatch::None : Swatch::Box, .ink = row.ink});
    }
    const double em = sketch.lineHeight();
    const double column = sketch.width("000000 ");
    const double right = sketch.room().right();
    double top = sketch.room().top();
    sketch.leave(0, 0, 2 * column, 0);
    sketch.addLegendBeside(lines);
    sketch.words({right - column, top}, Qt::AlignRight | Qt::AlignTop, "px", Ink::Faint);
    sketch.words({right, top}, Qt::AlignRight | Qt::AlignTop, "lines", Ink::Faint);
    for (const Row& row : rows) {
        top += em;
        addNumber(sketch, {right - column, top}, row, "h ", row.number(timing.h), row.hOption);
        addNumber(sketch, {right, top}, row, "v ", row.number(timing.v), row.vOption);
    }
}

void addRaster(Sketch& sketch, const Timing& timing) {
    const Axis& h = timing.h;
    const Axis& v = timing.v;
    const Raster raster(sketch.room(), timing);
    sketch.area(raster.box(0, 0, h.length(), v.length()), Ink::Blanking, Ink::Faint).name = "blanking";
    sketch.area(raster.box(0, 0, h.sync, v.length()), Ink::Sync).name = "horizontal sync";
    sketch.area(raster.box(0, 0, h.length(), v.sync), Ink::Sync).name = "vertical sync";
    if (h.border > 0 || v.border > 0) {
        sketch
            .area(raster.box(std::max(0.0, h.start() - h.border), std::max(0.0, v.start() - v.border),
                             std::min(h.length(), h.end() + h.border), std::min(v.length(), v.end() + v.border)),
                  Ink::Border)
            .name = "border";
    }
    const QPolygonF active = raster.box(h.start(), v.start(), h.end(), v.end());
    sketch.area(active, Ink::Ground);
    sketch.area(active, Ink::Screen, Ink::Text).name = "active";
    const QString size = number(h.active) + " x " + number(v.active);
    const QRectF place = active.boundingRect();
    if (sketch.width(size) < place.width() && sketch.lineHeight() < place.height()) {
        sketch.words(place.center(), Qt::AlignCenter, size);
    }
}

QString told(const char* direction, const Axis& axis, const char* unit) {
    return QString("%1: active %2, front porch %3, sync %4, back porch %5, border %6, total %7 %8")
        .arg(direction, number(axis.active), number(axis.frontPorch), number(axis.sync), number(axis.backPorch()),
             number(axis.border), number(axis.total()), unit);
}

} // namespace

Picture drawTiming(const Values& values, const Canvas& canvas) {
    const Timing timing = timingOf(values);
    if (timing.h.active <= 0 || timing.v.active <= 0) {
        return {};
    }
    Sketch sketch(canvas.size, canvas.font);
    addTable(sketch, timing);
    addRaster(sketch, timing);
    return {.name = "Detailed timing",
            .description = told("Horizontal", timing.h, "pixels") + ". " +
                           told("Vertical", timing.v, timing.lineHeight > 1 ? "lines of a field." : "lines."),
            .shapes = sketch.take()};
}

} // namespace wb::desktop
