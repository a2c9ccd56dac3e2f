#pragma once

#include <QRect>
#include <QWidget>

#include "core/control.h"

/// Twips, 1440 to the inch, in which the program counts positions of windows, and the pixels of a widget's screen.
namespace wb::desktop {

int toPixels(const QWidget& widget, double twips);
float toTwips(const QWidget& widget, int pixels);
QRect pixelsOf(const QWidget& widget, const Bounds& twips);

} // namespace wb::desktop
