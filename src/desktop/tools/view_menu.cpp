#include "desktop/tools/view_menu.h"

#include <QMenuBar>

namespace wb::desktop {

ViewMenu::ViewMenu(MainView& frame)
    : menu_(*new QMenu("V&iew", &frame.window())),
      fields_(*new FieldsDock(frame)),
      findings_(*new FindingsDock(frame)),
      places_(frame) {
    frame.window().menuBar()->insertMenu(&frame.entry(frame.frame().mnuWindow), &menu_);
    addDock(fields_, "&Fields", Qt::Key_F7);
    addDock(findings_, "Fi&ndings", Qt::Key_F8);
    menu_.addSeparator();
    addEntry("Find Fiel&d", Qt::CTRL | Qt::SHIFT | Qt::Key_F, [this] { fields_.find(); });
    addEntry("N&ext Finding", Qt::Key_F9, [this] { findings_.step(1); });
    addEntry("&Previous Finding", Qt::SHIFT | Qt::Key_F9, [this] { findings_.step(-1); });
    menu_.addSeparator();
    zoom_ = std::make_unique<Zoom>(frame, menu_);
    menu_.addSeparator();
    colours_ = std::make_unique<ColourChoice>(frame, menu_);
}

void ViewMenu::addEntry(const QString& text, const QKeySequence& keys, const std::function<void()>& act) {
    menu_.addAction(text, &menu_, act)->setShortcut(keys);
}

void ViewMenu::addDock(ToolDock& dock, const QString& text, const QKeySequence& keys) {
    QAction* entry = dock.toggleViewAction();
    entry->setText(text);
    entry->setShortcut(keys);
    menu_.addAction(entry);
    places_.watch(dock);
}

void ViewMenu::refresh() {
    places_.restore();
    fields_.refresh();
    findings_.refresh();
}

} // namespace wb::desktop
