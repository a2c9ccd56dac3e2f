#pragma once

#include <QObject>
#include <memory>
#include <unordered_map>
#include <vector>

#include "core/screen.h"
#include "desktop/views/control_view.h"

namespace wb::desktop {

class ScreenPage;

/// The window of one screen and the views of its controls.
class ScreenView : public QObject {
public:
    ScreenView(Screen& screen, UserActions& actions);
    ~ScreenView() override;

    /// The screen, or null when it has gone.
    Screen* screen() const { return *screen_; }
    virtual QWidget& window() = 0;
    /// Brings title and visibility in line with the screen.
    virtual void refresh() = 0;
    /// Brings in line what follows the program's variables, which tell of no change.
    virtual void refreshStates() {}
    /// Makes room for what the controls show now.
    virtual void fit() {}
    /// Brings the changed controls in line.
    void refreshControls();
    /// The screen goes: the window is hidden, and calls that wait are dropped.
    virtual void detach();

    ControlView* viewOf(const Control& control) const;
    void markStale(const Control& control);

    /// Runs an action of the user on the screen, unless the screen has gone by then.
    void act(std::function<void(Screen&)> action);
    /// The window's own close button: the model decides what becomes of it.
    void askToClose();

protected:
    void add(ControlView& view) { views_[view.control()] = &view; }
    void addPage(ScreenPage& page);
    UserActions& actions() const { return actions_; }

private:
    std::shared_ptr<Screen*> screen_;
    UserActions& actions_;
    std::unordered_map<const Control*, ControlView*> views_;
    std::vector<ControlView*> staleViews_;
    ScreenPage* page_ = nullptr;
};

} // namespace wb::desktop
