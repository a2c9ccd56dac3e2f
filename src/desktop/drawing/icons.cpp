#include "desktop/drawing/icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <array>

namespace wb::desktop {

namespace {

/// Icons are drawn with lines on a field of 24 by 24.
constexpr qreal fieldSize = 24;
constexpr qreal lineWidth = 1.6;

using Drawing = void (*)(QPainter&);

void paintSheet(QPainter& painter) {
    QPainterPath sheet;
    sheet.moveTo(6, 3);
    sheet.lineTo(14, 3);
    sheet.lineTo(18, 7);
    sheet.lineTo(18, 21);
    sheet.lineTo(6, 21);
    sheet.closeSubpath();
    painter.drawPath(sheet);
    painter.drawPolyline(QPolygonF({{14, 3}, {14, 7}, {18, 7}}));
}

void paintFolder(QPainter& painter) {
    painter.drawPolyline(QPolygonF({{3, 19}, {3, 5}, {9, 5}, {11, 8}, {19, 8}, {19, 11}}));
    painter.drawPolygon(QPolygonF({{3, 19}, {6.5, 11}, {22, 11}, {18.5, 19}}));
}

void paintDisk(QPainter& painter) {
    painter.drawPolygon(QPolygonF({{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}}));
    painter.drawRect(QRectF(8, 4, 7, 5));
    painter.drawRect(QRectF(7, 13, 10, 7));
}

void paintMagnifier(QPainter& painter) {
    painter.drawPolyline(QPolygonF({{11, 21}, {5, 21}, {5, 3}, {13, 3}, {17, 7}, {17, 9}}));
    painter.drawPolyline(QPolygonF({{13, 3}, {13, 7}, {17, 7}}));
    painter.drawEllipse(QPointF(15, 14), 4, 4);
    painter.drawLine(QPointF(18, 17), QPointF(21.5, 20.5));
}

void paintPrinter(QPainter& painter) {
    painter.drawPolyline(QPolygonF({{7, 9}, {7, 3}, {17, 3}, {17, 9}}));
    painter.drawPolyline(QPolygonF({{7, 17}, {3, 17}, {3, 9}, {21, 9}, {21, 17}, {17, 17}}));
    painter.drawRect(QRectF(7, 14, 10, 7));
}

void paintCalculator(QPainter& painter) {
    painter.drawRect(QRectF(5, 3, 14, 18));
    painter.drawRect(QRectF(8, 6, 8, 3));
    for (const qreal y : {12.5, 15.0, 17.5}) {
        for (const qreal x : {8.5, 12.0, 15.5}) {
            painter.drawPoint(QPointF(x, y));
        }
    }
}

void paintMonitor(QPainter& painter) {
    painter.drawRect(QRectF(3, 3, 18, 11));
    painter.drawLine(QPointF(12, 8), QPointF(12, 20));
    painter.drawPolyline(QPolygonF({{8.5, 17}, {12, 20.5}, {15.5, 17}}));
}

/// In the order of the pictures.
constexpr std::array<Drawing, 7> drawings = {paintSheet,   paintFolder,     paintDisk,   paintMagnifier,
                                             paintPrinter, paintCalculator, paintMonitor};

class LineIcon : public QIconEngine {
public:
    explicit LineIcon(Drawing drawing) : drawing_(drawing) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QApplication::palette();
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / fieldSize, rect.height() / fieldSize);
        painter->setPen(
            QPen(palette.color(group, QPalette::ButtonText), lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        drawing_(*painter);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return result;
    }

    QIconEngine* clone() const override { return new LineIcon(*this); }

private:
    Drawing drawing_;
};

} // namespace

QIcon toolBarIcon(FrmMain::Picture picture) {
    return QIcon(new LineIcon(drawings.at(static_cast<std::size_t>(picture))));
}

} // namespace wb::desktop
