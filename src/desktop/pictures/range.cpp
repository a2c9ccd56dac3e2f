#include <QStringList>
#include <algorithm>
#include <array>
#include <vector>

#include "desktop/pictures/painters.h"
#include "desktop/pictures/sketch.h"

namespace wb::desktop {

namespace {

using fields::Mode;

/// A rate of a mode, where its source tells it.
using RateOf = std::optional<double> (*)(const Mode&);

std::optional<double> verticalOf(const Mode& mode) {
    constexpr double milli = 1000;
    return mode.refreshMilliHertz ? std::optional(static_cast<double>(*mode.refreshMilliHertz) / milli) : std::nullopt;
}

std::optional<double> horizontalOf(const Mode& mode) {
    const bool isKnown = mode.pixelClockKilohertz && mode.horizontalTotal && *mode.horizontalTotal > 0;
    return isKnown ? std::optional(static_cast<double>(*mode.pixelClockKilohertz) / *mode.horizontalTotal)
                   : std::nullopt;
}

std::optional<double> clockOf(const Mode& mode) {
    constexpr double kilo = 1000;
    return mode.pixelClockKilohertz ? std::optional(static_cast<double>(*mode.pixelClockKilohertz) / kilo)
                                    : std::nullopt;
}

/// What a bar tells of. The clock has no lowest limit.
struct Kind {
    const char* label;
    const char* unit;
    std::string_view low;
    std::string_view high;
    std::string_view name;
    int lowOption;
    int highOption;
    RateOf rateOf;
    double slack; ///< limits that are whole numbers may miss less than one
};

constexpr int noOption = -1;
constexpr std::array kinds = {
    Kind{"Vertical", "Hz", "min_v_rate", "max_v_rate", "vertical", 0, 1, &verticalOf, 1},
    Kind{"Horizontal", "kHz", "min_h_rate", "max_h_rate", "horizontal", 2, 3, &horizontalOf, 1},
    Kind{"Pixel clock", "MHz", "", "max_pixel_clock", "clock", noOption, 4, &clockOf, 0},
};

struct Mark {
    double value;
    bool inside;
};

struct Bar {
    const Kind* kind;
    double low;
    double high;
    std::vector<Mark> marks; ///< each rate once

    /// From 0 to what the bar and its marks need.
    double end() const {
        double last = std::max(low, high);
        for (const Mark& mark : marks) {
            last = std::max(last, mark.value);
        }
        return last;
    }
};

bool isInside(const Kind& kind, double value, double low, double high) {
    return kind.slack > 0 ? value > low - kind.slack && value < high + kind.slack : value >= low && value <= high;
}

std::optional<Bar> barOf(const Values& values, const Kind& kind) {
    const auto high = values.number(kind.high);
    if (!high) {
        return {};
    }
    Bar bar{&kind, kind.low.empty() ? 0 : values.numberOr0(kind.low), *high, {}};
    for (const Mode& mode : values.reading().summary.modes) {
        const auto rate = kind.rateOf(mode);
        const bool isNew = rate && std::none_of(bar.marks.begin(), bar.marks.end(),
                                                [&](const Mark& mark) { return mark.value == *rate; });
        if (isNew) {
            bar.marks.push_back({*rate, isInside(kind, *rate, bar.low, bar.high)});
        }
    }
    return bar;
}

/// The numbers of the limits, in columns of their own: a bar may be too short to carry them.
class Columns {
public:
    explicit Columns(Sketch& sketch)
        : left_(sketch.room().left()),
          low_(left_ + sketch.width("Pixel clock  0000")),
          high_(low_ + sketch.width(" to 00000 MHz")) {
        sketch.leave(high_ - left_ + sketch.lineHeight() / 2, 0, 1, 0);
    }

    void write(Sketch& sketch, const Bar& bar, double middle) const {
        constexpr auto right = Qt::AlignRight | Qt::AlignVCenter;
        const Kind& kind = *bar.kind;
        sketch.words({left_, middle}, Qt::AlignLeft | Qt::AlignVCenter, kind.label);
        if (kind.lowOption != noOption) {
            Shape& low = sketch.words({low_, middle}, right, shortNumber(bar.low, 2));
            low.name = std::string(kind.name) + " low";
            low.pick = Pick{"DtaOpt", kind.lowOption};
        }
        Shape& high = sketch.words({high_, middle}, right,
                                   QString("to %1 %2").arg(shortNumber(bar.high, 2), QLatin1String(kind.unit)));
        high.name = std::string(kind.name) + " high";
        high.pick = Pick{"DtaOpt", kind.highOption};
    }

private:
    double left_;
    double low_;
    double high_;
};

void drawBar(Sketch& sketch, const Bar& bar, double middle, double height) {
    const QRectF& room = sketch.room();
    const double end = bar.end();
    const auto at = [&](double value) { return room.left() + (end > 0 ? value / end * room.width() : 0); };
    const double half = height * 0.3;
    sketch.path(QPolygonF({QPointF(at(0), middle), QPointF(at(end), middle)}), Ink::Faint).name =
        std::string(bar.kind->name) + " scale";
    sketch
        .area(QPolygonF(QRectF(QPointF(at(bar.low), middle - half), QPointF(at(bar.high), middle + half)).normalized()),
              Ink::Screen, Ink::Text)
        .name = std::string(bar.kind->name) + " bar";
    for (const Mark& mark : bar.marks) {
        const double reach = mark.inside ? half : height / 2;
        sketch
            .path(QPolygonF({QPointF(at(mark.value), middle - reach), QPointF(at(mark.value), middle + reach)}),
                  mark.inside ? Ink::Inside : Ink::Outside)
            .name = std::string(bar.kind->name) + (mark.inside ? " inside" : " outside");
    }
}

QString told(const Bar& bar) {
    QStringList outside;
    for (const Mark& mark : bar.marks) {
        if (!mark.inside) {
            outside += shortNumber(mark.value, 2);
        }
    }
    const auto count = static_cast<qsizetype>(bar.marks.size());
    QString text = QString("%1: %2 to %3 %4, %5 of %6 rates of timings inside")
                       .arg(bar.kind->label, shortNumber(bar.low, 2), shortNumber(bar.high, 2), bar.kind->unit)
                       .arg(count - outside.size())
                       .arg(count);
    return outside.isEmpty() ? text : text + ", outside: " + outside.join(", ");
}

} // namespace

Picture drawRange(const Values& values, const Canvas& canvas) {
    const Values range = values.inner("range.");
    std::vector<Bar> bars;
    QStringList words;
    for (const Kind& kind : kinds) {
        if (const auto bar = barOf(range, kind)) {
            bars.push_back(*bar);
            words += told(*bar);
        }
    }
    if (bars.empty()) {
        return {};
    }
    Sketch sketch(canvas.size, canvas.font);
    const Columns columns(sketch);
    constexpr double highest = 2.5; // lines
    const double height =
        std::min(sketch.room().height() / static_cast<double>(kinds.size()), highest * sketch.lineHeight());
    double middle = sketch.room().top() + height / 2;
    for (const Bar& bar : bars) {
        columns.write(sketch, bar, middle);
        drawBar(sketch, bar, middle, height);
        middle += height;
    }
    return {.name = "Range limits", .description = words.join(". ") + '.', .shapes = sketch.take()};
}

} // namespace wb::desktop
