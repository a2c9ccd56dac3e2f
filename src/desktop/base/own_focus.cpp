#include "desktop/base/own_focus.h"

#include <QVariant>

namespace wb::desktop {

namespace {

constexpr const char* mark = "ownFocus";

} // namespace

void markOwnFocus(QWidget& widget) {
    widget.setProperty(mark, true);
}

bool keepsOwnFocus(const QWidget* widget) {
    while (widget != nullptr && !widget->property(mark).toBool()) {
        widget = widget->parentWidget();
    }
    return widget != nullptr;
}

} // namespace wb::desktop
