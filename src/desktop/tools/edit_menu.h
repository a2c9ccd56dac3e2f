#pragma once

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <functional>

#include "desktop/tools/find_window.h"
#include "desktop/windows/frame_addition.h"
#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// The Edit menu, between File and Window: the image as a whole, and its cells past their panels.
class EditMenu : public FrameAddition {
public:
    explicit EditMenu(MainView& frame);

    void refresh() override;

private:
    using Act = std::function<void(Workbench&)>;

    QAction& add(QMenu& menu, const QString& name, const QString& text, const QList<QKeySequence>& keys, Act act);
    void makeCopies();
    void nameSteps();
    void paste(Workbench& workbench);
    void find();

    MainView& frame_;
    QMenu* menu_;
    QMenu* copies_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QAction* copyField_ = nullptr;
    QAction* paste_ = nullptr;
    QAction* find_ = nullptr;
    QPointer<FindWindow> findWindow_;
};

} // namespace wb::desktop
