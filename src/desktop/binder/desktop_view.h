#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "core/view.h"
#include "core/workbench.h"
#include "desktop/base/model_gate.h"
#include "desktop/binder/cell_names.h"
#include "desktop/binder/focus_keeper.h"
#include "desktop/binder/way_back.h"
#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// The desktop view of the running program: makes a window for each screen, follows the model's changes, and turns what
/// the user does into calls of the model. Changes are noted while a call runs and shown once, when it has returned; it
/// looks at screens without touching them.
class DesktopView : public QObject, public View, public GateObserver, public UserActions {
public:
    /// Both must outlive the view.
    DesktopView(Workbench& workbench, ModelGate& gate);
    ~DesktopView() override;

    /// The frame's window, or null before the frame is loaded.
    MainView* mainView() const { return main_; }
    ScreenView* viewOf(const Screen& screen) const;
    ControlView* viewOf(const Control& control) const;
    /// Carries out a focus move that Qt has made for the user and that still waits to be reported.
    void settleFocus() override { focus_.settle(); }
    LiveReading& liveReading() override { return reading_; }

    void controlChanged(Control& control) override;
    void screenChanged(Screen& screen) override;
    void screenLoaded(Screen& screen) override;
    void screenUnloaded(Screen& screen) override;
    void windowsChanged() override;
    void focusChanged() override;
    void fileWritten(const WrittenFile& file) override;

private:
    void callReturned() override;
    void eventLoopStarts() override;
    ModelGate& gate() override { return gate_; }
    void focusArrived(ControlView& view, Qt::FocusReason reason) override { focus_.focusArrived(view, reason); }
    void activationArrived(ScreenView& view, Qt::FocusReason reason) override {
        focus_.activationArrived(view, reason);
    }
    void windowsSettled() override { focus_.alignSoon(); }

    void showChanges();
    void dropGone();
    void makeMissing();
    std::unique_ptr<ScreenView> makeView(Screen& screen);
    void arrangeChildren();
    /// A key that works wherever the focus is in the frame.
    void addKey(const QKeySequence& keys, const std::function<void()>& act);
    void goBack();
    void closeActiveChild();
    void findInReport();

    Workbench& workbench_;
    ModelGate& gate_;
    FocusKeeper focus_;
    WayBack wayBack_;
    LiveReading reading_;
    CellNames cellNames_;
    std::unordered_map<const Screen*, std::unique_ptr<ScreenView>> screens_;
    std::vector<std::unique_ptr<ScreenView>> gone_;
    MainView* main_ = nullptr;
    bool windowsStale_ = false;
    bool focusMoved_ = false;
};

} // namespace wb::desktop
