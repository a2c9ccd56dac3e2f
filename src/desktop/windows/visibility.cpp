#include "desktop/windows/visibility.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QScrollBar>

namespace wb::desktop {

namespace {

/// Moves the bar so that the stretch from `start` to `end`, counted in what is visible, comes into its page.
void scrollTo(QScrollBar& bar, int start, int end, int page) {
    if (start < 0) {
        bar.setValue(bar.value() + start);
    } else if (end > page) {
        bar.setValue(bar.value() + qMin(end - page, start));
    }
}

void showInArea(QMdiArea& area, const QWidget& widget) {
    const QWidget* viewport = area.viewport();
    const QRect place(widget.mapTo(viewport, QPoint(0, 0)), widget.size());
    scrollTo(*area.horizontalScrollBar(), place.left(), place.left() + place.width(), viewport->width());
    scrollTo(*area.verticalScrollBar(), place.top(), place.top() + place.height(), viewport->height());
}

} // namespace

void bringIntoSight(QWidget& widget) {
    for (QWidget* outer = widget.parentWidget(); outer != nullptr; outer = outer->parentWidget()) {
        if (auto* scroller = qobject_cast<QScrollArea*>(outer)) {
            scroller->ensureWidgetVisible(&widget);
        } else if (auto* area = qobject_cast<QMdiArea*>(outer)) {
            showInArea(*area, widget);
        }
    }
}

QMdiSubWindow* minimisedWindowOf(QWidget& widget) {
    QWidget* outer = &widget;
    while (outer != nullptr && qobject_cast<QMdiSubWindow*>(outer) == nullptr) {
        outer = outer->parentWidget();
    }
    return outer != nullptr && outer->isMinimized() ? static_cast<QMdiSubWindow*>(outer) : nullptr;
}

void restoreWindowOf(QWidget& widget) {
    if (QMdiSubWindow* window = minimisedWindowOf(widget)) {
        window->showNormal();
    }
}

} // namespace wb::desktop
