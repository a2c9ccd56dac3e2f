#pragma once

#include <QAction>
#include <QPointer>
#include <QToolButton>
#include <array>

#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// A button beside the input box of each panel with the values of a detailed timing, which opens the calculator. It
/// takes no focus: the keys have the entry of the menu.
class TimingButtons {
public:
    /// With the entry whose command the buttons have; both outlive them.
    TimingButtons(MainView& frame, QAction& command) : frame_(frame), command_(command) {}

    /// Gives the block screens that have come a button.
    void refresh();

private:
    MainView& frame_;
    QAction& command_;
    std::array<QPointer<QToolButton>, 2> buttons_; ///< of block 0 and of the extension
};

} // namespace wb::desktop
