#include "desktop/tools/beside.h"

#include <QScreen>

#include "desktop/windows/frame_size.h"

namespace wb::desktop {

void placeBeside(QWidget& window, const QWidget& frame) {
    const QRect room = frame.screen()->availableGeometry();
    const QRect taken = frame.frameGeometry();
    const QSize size = window.size().grownBy(likelyDecoration(window));
    const QRect right({taken.x() + taken.width(), taken.y()}, size);
    const QRect left({taken.x() - size.width(), taken.y()}, size);
    const QRect over({taken.x() + taken.width() - size.width(), taken.y() + taken.height() - size.height()}, size);
    for (const QRect& place : {right, left}) {
        if (room.contains(place)) {
            window.move(place.topLeft());
            return;
        }
    }
    window.move(movedInside(over, room).topLeft());
}

} // namespace wb::desktop
