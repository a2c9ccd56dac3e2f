#pragma once

#include "core/screen.h"

namespace wb::desktop {

/// The cell that had the focus before the last command button of the frame took it: where the user was at work.
class WayBack {
public:
    /// To be told of every control that the model gives the focus; null for none.
    void focusMoved(Control* control);
    void forget(const Screen& screen);
    /// The cell, or null while there is none.
    Control* cell() const { return left_; }

private:
    Control* visited_ = nullptr; ///< the last cell that had the focus
    Control* left_ = nullptr;
};

} // namespace wb::desktop
