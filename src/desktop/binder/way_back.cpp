#include "desktop/binder/way_back.h"

namespace wb::desktop {

void WayBack::focusMoved(Control* control) {
    if (control == nullptr) {
        return;
    }
    if (control->name() == "txtEdit") {
        visited_ = control;
    } else if (control->screen().id() == ScreenId::Main) {
        left_ = visited_;
    }
}

void WayBack::forget(const Screen& screen) {
    for (Control** cell : {&visited_, &left_}) {
        if (*cell != nullptr && &(*cell)->screen() == &screen) {
            *cell = nullptr;
        }
    }
}

} // namespace wb::desktop
