#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <memory>

#include "core/control.h"
#include "desktop/base/live_reading.h"
#include "desktop/base/model_gate.h"
#include "desktop/layouts/layout.h"

namespace wb::desktop {

class ControlView;
class ScreenView;

/// Where views report what the user does, and learn what the image says.
class UserActions {
public:
    virtual ~UserActions() = default;
    virtual ModelGate& gate() = 0;
    virtual LiveReading& liveReading() = 0;
    /// Qt has given its focus to the widget of that view.
    virtual void focusArrived(ControlView& view, Qt::FocusReason reason) = 0;
    /// Qt has made the window of that view the active child, or the user has pressed its title bar with the mouse.
    virtual void activationArrived(ScreenView& view, Qt::FocusReason reason) = 0;
    /// Carries out a focus move that has been reported and still waits, so that what follows finds it done.
    virtual void settleFocus() = 0;
    /// Qt has shown, hidden or resized windows by itself: its focus is to go where the model has it, once that is done.
    virtual void windowsSettled() = 0;
};

/// The widget of one control. It shows the control's properties and turns what the user does into calls of the model;
/// it keeps nothing of its own.
class ControlView : public QObject {
public:
    ControlView(Control& control, const Place& place, UserActions& actions);

    /// The control, or null when its screen has gone.
    Control* control() const { return *control_; }
    const Place& place() const { return place_; }
    virtual QWidget* widget() const = 0;

    /// Brings the widget in line with the control.
    virtual void refresh();
    /// In a panel only what is disabled by itself, or with its group, is grey: that does not apply to the image. What
    /// is disabled with the whole panel, as while editing is off, looks as it does otherwise.
    void refreshPalette();
    /// The widget shows the control that has the focus of the program.
    virtual void focusShown() {}
    /// Adds to the name that its place gives it, and describes the control.
    void speakAlso(const QString& what, const QString& description);
    /// The screen of the control goes; calls that wait are dropped.
    void detach() { *control_ = nullptr; }

    bool stale = false; ///< the control has changed since the last refresh

    /// Runs an action of the user on the control, unless the control has gone by then.
    void act(std::function<void(Control&)> action);
    /// The same for what may go ahead of a focus move that still waits.
    void tell(std::function<void(Control&)> action);
    /// The keys of a widget that holds no text: characters and the key codes of others go to the model. False for keys
    /// that mean nothing to it.
    bool typeInto(const QKeyEvent& event);

protected:
    /// To be called once by each kind, when its widget exists.
    void adopt(QWidget& widget);
    UserActions& actions() const { return actions_; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::shared_ptr<Control*> control_;
    const Place& place_;
    UserActions& actions_;
};

} // namespace wb::desktop
