#include "desktop/services/window_arranger.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

namespace wb::desktop {

namespace {

/// The shown windows, the active one first.
QList<QMdiSubWindow*> shownWindows(const QMdiArea& area, bool minimised) {
    QList<QMdiSubWindow*> windows = area.subWindowList(QMdiArea::StackingOrder);
    std::reverse(windows.begin(), windows.end());
    windows.removeIf(
        [&](const QMdiSubWindow* window) { return window->isHidden() || window->isMinimized() != minimised; });
    return windows;
}

/// Strips over the whole area, one below the other or side by side.
void tile(const QMdiArea& area, bool horizontal) {
    const QList<QMdiSubWindow*> windows = shownWindows(area, false);
    const QSize room = area.viewport()->size();
    const auto count = static_cast<int>(windows.size());
    for (int i = 0; i < count; ++i) {
        const QRect strip = horizontal ? QRect(0, room.height() * i / count, room.width(), room.height() / count)
                                       : QRect(room.width() * i / count, 0, room.width() / count, room.height());
        windows[i]->showNormal();
        windows[i]->setGeometry(strip);
    }
}

/// Rows from the lower left corner, each above the last.
void lineUpIcons(const QMdiArea& area) {
    const QSize room = area.viewport()->size();
    int left = 0;
    int bottom = room.height();
    for (QMdiSubWindow* window : shownWindows(area, true)) {
        if (left > 0 && left + window->width() > room.width()) {
            left = 0;
            bottom -= window->height();
        }
        window->move(left, bottom - window->height());
        left += window->width();
    }
}

} // namespace

void MdiArranger::arrange(platform::Arrangement mode) {
    gate_.announceEventLoop(); // the windows must be there first
    QMdiArea* target = area ? area() : nullptr;
    if (target == nullptr) {
        return;
    }
    switch (mode) {
        case platform::Arrangement::Cascade:
            target->cascadeSubWindows();
            break;
        case platform::Arrangement::TileHorizontal:
            tile(*target, true);
            break;
        case platform::Arrangement::TileVertical:
            tile(*target, false);
            break;
        case platform::Arrangement::ArrangeIcons:
            lineUpIcons(*target);
            break;
    }
}

} // namespace wb::desktop
