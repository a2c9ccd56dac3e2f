#include "desktop/pictures/picture_widget.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "desktop/pictures/inks.h"

namespace wb::desktop {

namespace {

/// In em, so that lines and dots grow with the font.
constexpr double lineWidth = 1.0 / 12;
constexpr double dotRadius = 0.3;

class ShapePainter {
public:
    explicit ShapePainter(QWidget& widget)
        : painter_(&widget), palette_(widget.palette()), em_(widget.fontMetrics().height()) {
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    void paint(const Shape& shape) {
        painter_.setPen(penOf(shape));
        painter_.setBrush(shape.fill == Ink::None ? QBrush(Qt::NoBrush) : QBrush(inkColour(shape.fill, palette_)));
        switch (shape.kind) {
            case Shape::Kind::Area:
                painter_.drawPolygon(shape.points);
                break;
            case Shape::Kind::Path:
                painter_.drawPolyline(shape.points);
                break;
            case Shape::Kind::Dot:
                painter_.drawEllipse(shape.points.front(), dotRadius * em_, dotRadius * em_);
                break;
            case Shape::Kind::Words:
                painter_.drawText(shape.points.boundingRect(), flagsOf(shape), shape.words);
                break;
        }
    }

private:
    /// Words whose box is higher than a line fill it with as many lines as they need.
    int flagsOf(const Shape& shape) const {
        const bool wraps = shape.points.boundingRect().height() >= 2 * em_;
        return Qt::AlignCenter | Qt::TextDontClip | (wraps ? Qt::TextWordWrap : 0);
    }

    QPen penOf(const Shape& shape) const {
        if (shape.line == Ink::None) {
            return Qt::NoPen;
        }
        const bool isStroke = shape.kind == Shape::Kind::Path && shape.line != Ink::Faint && shape.line != Ink::Grid;
        QPen pen(inkColour(shape.line, palette_), lineWidth * em_ * (isStroke ? 2 : 1));
        pen.setCapStyle(Qt::FlatCap);
        pen.setStyle(shape.dashed ? Qt::DashLine : Qt::SolidLine);
        return pen;
    }

    QPainter painter_;
    QPalette palette_;
    double em_;
};

/// Tells screen readers that it is a picture.
class SpokenPicture : public QAccessibleWidget {
public:
    explicit SpokenPicture(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Graphic) {}
};

QAccessibleInterface* makeSpoken(const QString&, QObject* object) {
    auto* widget = dynamic_cast<PictureWidget*>(object);
    return widget != nullptr ? new SpokenPicture(widget) : nullptr;
}

} // namespace

PictureWidget::PictureWidget() {
    static const bool installed = [] {
        QAccessible::installFactory(&makeSpoken);
        return true;
    }();
    Q_UNUSED(installed);
    setObjectName("picture");
    setMouseTracking(true);
}

void PictureWidget::setPicture(Picture picture) {
    picture_ = std::move(picture);
    setAccessibleName(picture_.name);
    setAccessibleDescription(picture_.description);
    update();
}

void PictureWidget::paintEvent(QPaintEvent*) {
    ShapePainter painter(*this);
    for (const Shape& shape : picture_.shapes) {
        painter.paint(shape);
    }
}

const Shape* PictureWidget::pickableAt(const QPointF& point) const {
    const Shape* shape = pickedAt(picture_, point);
    return shape != nullptr && canPick(*shape->pick) ? shape : nullptr;
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event) {
    setCursor(pickableAt(event->position()) != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

// What is beside the shapes is the panel's, to which the event goes on.

void PictureWidget::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton && pickableAt(event->position()) != nullptr);
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
    const Shape* shape = event->button() == Qt::LeftButton ? pickableAt(event->position()) : nullptr;
    if (shape != nullptr) {
        const Pick picked = *shape->pick; // what follows may make the picture anew
        pick(picked);
    }
}

void PictureWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    event->setAccepted(pickableAt(event->position()) != nullptr);
}

} // namespace wb::desktop
