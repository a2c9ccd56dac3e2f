#pragma once

#include <QString>

namespace wb::desktop {

/// Something in the frame beside what the program has there: entries behind the given ones, menus, docks, panels of the
/// status bar. It is made with the frame, by MainView's window, menus, `screen()` and `act`, and goes before it.
class FrameAddition {
public:
    FrameAddition() = default;
    FrameAddition(const FrameAddition&) = delete;
    FrameAddition& operator=(const FrameAddition&) = delete;
    virtual ~FrameAddition() = default;

    /// A call into the model has returned, or an event loop begins inside one: it is to show what the model says now,
    /// and must not call into it.
    virtual void refresh() {}

    /// The program was started with the name of a file. Gives whether this addition is the one that loads files.
    virtual bool openNamed(const QString& /*name*/) { return false; }
};

} // namespace wb::desktop
