#pragma once

#include <QAction>

#include "desktop/views/control_view.h"

namespace wb::desktop {

/// A menu entry or a tool bar button. It has no widget of its own: one action stands for it wherever it shows.
class MenuView : public ControlView {
public:
    MenuView(Control& control, UserActions& actions);

    QWidget* widget() const override { return nullptr; }
    void refresh() override;
    /// Shows the entry grey, as its command would do nothing now, or as the model has it.
    void setIdle(bool idle);
    QAction& action() const { return *action_; }

private:
    QAction* action_;
    bool idle_ = false;
};

} // namespace wb::desktop
