#include "desktop/tools/keys_entry.h"

#include <QMenu>

#include "desktop/tools/keys_window.h"

namespace wb::desktop {

KeysEntry::KeysEntry(MainView& frame) {
    QAction* entry = frame.menu(frame.frame().mnuHelp).addAction("&Keys");
    QObject::connect(entry, &QAction::triggered, &frame, [this, &frame] { show(frame.window()); });
}

void KeysEntry::show(QWidget& owner) {
    if (window_.isNull()) {
        window_ = new KeysWindow(owner);
    }
    window_->show();
    window_->raise();
    window_->activateWindow();
}

} // namespace wb::desktop
