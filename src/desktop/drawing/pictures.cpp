#include "desktop/drawing/pictures.h"

#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include "desktop/drawing/colours.h"

namespace wb::desktop {

namespace {

constexpr QRgb night = 0xFF16324F;
constexpr QRgb dusk = 0xFF2E6F95;
constexpr QRgb paper = 0xFFF4F7FA;
constexpr QRgb shade = 0xFFB9C6D3;
constexpr QRgb plainCell = 0xFFDCE6F0;

/// The picture is drawn on a field of 64 by 64.
constexpr qreal monitorField = 64;

QRgb cellColour(int row, int column) {
    constexpr int field = 9;
    const int cell = row * 5 + column;
    if (cell == field) {
        return fieldColour;
    }
    return cell > field - 5 && cell < field + 3 ? groupColour : plainCell;
}

void paintMonitor(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(shade));
    painter.drawRoundedRect(QRectF(28, 46, 8, 10), 1, 1);
    painter.drawRoundedRect(QRectF(18, 54, 28, 4), 2, 2);
    painter.setBrush(QColor(paper));
    painter.drawRoundedRect(QRectF(3, 6, 58, 42), 4, 4);
    QLinearGradient glow(0, 10, 0, 44);
    glow.setColorAt(0, QColor(dusk));
    glow.setColorAt(1, QColor(night));
    painter.setBrush(glow);
    painter.drawRoundedRect(QRectF(7, 10, 50, 34), 2, 2);
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 5; ++column) {
            painter.setBrush(QColor(cellColour(row, column)));
            painter.drawRoundedRect(QRectF(10.5 + column * 9, 13.5 + row * 7.2, 7, 5), 1, 1);
        }
    }
}

void paintMonitorIn(QPainter& painter, const QRectF& rect) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / monitorField, rect.height() / monitorField);
    paintMonitor(painter);
    painter.restore();
}

QIcon makeProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintMonitorIn(painter, QRectF(0, 0, size, size));
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

QIcon programIcon() {
    static const QIcon icon = makeProgramIcon();
    return icon;
}

QSize pictureSize(const QWidget& widget) {
    constexpr int lines = 5;
    const int side = QFontMetrics(widget.font()).lineSpacing() * lines;
    return {side, side};
}

QSize splashSize(const QWidget& widget) {
    constexpr int columns = 76;
    constexpr int lines = 17;
    const QFontMetrics metrics(widget.font());
    return {metrics.averageCharWidth() * columns, metrics.lineSpacing() * lines};
}

void paintSplash(QPainter& painter, const QRect& rect) {
    QLinearGradient sky(rect.topLeft(), rect.bottomRight());
    sky.setColorAt(0, QColor(night));
    sky.setColorAt(1, QColor(dusk));
    painter.fillRect(rect, sky);

    const qreal side = rect.height() * 0.62;
    const qreal margin = rect.height() * 0.14;
    paintMonitorIn(painter, QRectF(rect.left() + margin, rect.center().y() - side / 2, side, side));

    const QRectF words(rect.left() + margin + side + margin / 2, rect.top(), rect.width() - side - 2 * margin,
                       rect.height());
    painter.setPen(QColor(paper));
    QFont title = painter.font();
    title.setBold(true);
    title.setPointSizeF(title.pointSizeF() * 2);
    painter.setFont(title);
    painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, "EDID / DDC\nField Workbench");
    painter.setPen(QPen(QColor(fieldColour), 2));
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
}

} // namespace wb::desktop
