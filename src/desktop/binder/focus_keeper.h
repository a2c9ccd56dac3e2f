#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "desktop/views/control_view.h"
#include "desktop/windows/screen_view.h"

namespace wb::desktop {

/// Keeps Qt's focus where the model has it. The model alone decides: a move that the user makes is reported to it
/// queued, and every other one that Qt makes is taken back.
class FocusKeeper : public QObject {
public:
    using Find = std::function<ControlView*(const Control&)>;

    FocusKeeper(Workbench& workbench, ModelGate& gate, Find find);

    void focusArrived(ControlView& view, Qt::FocusReason reason);
    void activationArrived(ScreenView& view, Qt::FocusReason reason);
    /// Carries out a move that waits.
    void settle();
    /// Gives Qt's focus to the widget of the control that has it in the model, or takes it from all; a box of the view
    /// itself keeps it.
    void align();
    /// The same when the events at hand are through.
    void alignSoon() { queue(&FocusKeeper::align); }
    /// The same after the model has moved the focus, which restores a minimised window around it unless the user has
    /// pressed just that.
    void follow();

private:
    void focusChanged(QWidget* from, QWidget* to);
    bool moveWaits() const { return !control_.isNull() || !screen_.isNull(); }
    QWidget* target() const;
    void giveToTarget();
    void queue(void (FocusKeeper::*step)());

    Workbench& workbench_;
    ModelGate& gate_;
    Find find_;
    // The move that waits: the latest one wins.
    QPointer<ControlView> control_;
    QPointer<ScreenView> screen_;
    bool pressed_ = false;     ///< of the screen: by the mouse
    bool keepsIcons_ = false;  ///< no window is to be restored
    QPointer<QWidget> holder_; ///< what had Qt's focus when it was last told of a change
};

} // namespace wb::desktop
