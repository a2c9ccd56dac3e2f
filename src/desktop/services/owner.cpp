#include "desktop/services/owner.h"

#include <QApplication>
#include <QMainWindow>

namespace wb::desktop {

QWidget* dialogOwner() {
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) {
            return window;
        }
    }
    return nullptr;
}

} // namespace wb::desktop
