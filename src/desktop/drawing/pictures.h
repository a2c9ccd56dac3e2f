#pragma once

#include <QIcon>
#include <QRect>
#include <QSize>

class QPainter;
class QWidget;

namespace wb::desktop {

/// A monitor with the cells of an image on its screen.
QIcon programIcon();
/// The size of the picture in the About box.
QSize pictureSize(const QWidget& widget);

QSize splashSize(const QWidget& widget);
void paintSplash(QPainter& painter, const QRect& rect);

} // namespace wb::desktop
