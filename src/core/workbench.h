#pragma once

#include <array>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "core/change_history.h"
#include "core/focus.h"
#include "core/screens/frm_cea_ext.h"
#include "core/screens/frm_edid.h"
#include "core/screens/frm_main.h"
#include "core/screens/small_screens.h"
#include "core/shared_variables.h"
#include "core/windows.h"
#include "platform/services.h"

namespace wb {

class View;

/// What the higher floors connect to the life of a screen.
struct ScreenLife {
    void (*connect)(Screen&) = nullptr;                 ///< connects the handlers of a new screen's controls
    void (*load)(Workbench&) = nullptr;                 ///< the load step
    void (*unload)(Workbench&, bool& cancel) = nullptr; ///< the unload step; may refuse
    void (*close)(Workbench&) = nullptr;                ///< what the window's close button does instead of unloading
};

using Wiring = std::array<ScreenLife, screenCount>;

/// The running program: its shared variables, its screens, and the platform it runs on. Tests make as many as they
/// like.
struct Workbench : SharedVariables {
    /// Both referred objects must outlive the program.
    Workbench(const platform::Services& services, const Wiring& wiring);
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;
    ~Workbench();

    // The screens. Each call is a touch: a screen that does not exist is created and runs its load step.
    FrmMain& frmMain() { return touchAs<FrmMain>(ScreenId::Main); }
    FrmSplash& frmSplash() { return touchAs<FrmSplash>(ScreenId::Splash); }
    FrmEdid& frmEDID() { return touchAs<FrmEdid>(ScreenId::Edid); }
    FrmCeaExt& frmCEA_EXT() { return touchAs<FrmCeaExt>(ScreenId::CeaExt); }
    FrmDocument& frmDocument() { return touchAs<FrmDocument>(ScreenId::Document); }
    FrmHexCalculator& frmHexCalculator() { return touchAs<FrmHexCalculator>(ScreenId::HexCalculator); }
    FrmHelp& frmHelp() { return touchAs<FrmHelp>(ScreenId::Help); }
    FrmEdidReg& frmEDIDREG() { return touchAs<FrmEdidReg>(ScreenId::EdidReg); }
    FrmAbout& frmAbout() { return touchAs<FrmAbout>(ScreenId::About); }

    /// The same by number.
    Screen& touch(ScreenId id) {
        Screen* const screen = loaded(id);
        return screen != nullptr ? *screen : create(id);
    }
    /// A new screen of that kind that is no part of the program: without handlers, and its load step has not run.
    std::unique_ptr<Screen> makeScreen(ScreenId id);
    /// The screen if it exists, without touching it.
    Screen* loaded(ScreenId id) const { return screens_[static_cast<std::size_t>(id)].get(); }
    /// The existing screens in the order of their creation.
    std::vector<Screen*> loadedInOrder() const { return creationOrder_; }
    /// Runs the unload step; false when it refused.
    bool runUnload(Screen& screen);
    /// Does what the window's own close button does: unloads the screen, unless its wiring has a close step.
    void close(Screen& screen);
    /// Takes the screen out of the program. The object itself lives until the outermost action has returned.
    void discard(ScreenId id);

    /// Puts the program back to how it was before its start, for the next image of many. The screens are kept and put
    /// back when they are touched next. For a program that nobody draws, and between actions.
    void startOver();

    /// Shows the box of a failure: its text, an OK button, no title.
    void showFailure(const Failure& failure);
    /// Shows a text with an OK button.
    void showMessage(const std::string& text);
    /// Asks with Yes and No; true for Yes.
    bool askYesNo(const std::string& text, const std::string& title = {}, platform::Icon icon = platform::Icon::None);

    /// Runs what the user (or the system) caused: a failure that no procedure trapped ends it and is shown like any
    /// other.
    template <class Action>
    void runAction(Action&& action) {
        const ActionDepth depth(*this);
        try {
            std::forward<Action>(action)();
        } catch (const Failure& failure) {
            showFailure(failure);
        }
    }

    /// The same for what the user caused, on a control or on none, which the history is told of. An action inside
    /// another one is a part of it.
    template <class Action>
    void runUserAction(Deed deed, const Control* control, Action&& action) {
        {
            const UserActionDepth depth(*this);
            if (userActionDepth_ == 1 && history != nullptr) {
                history->actionBegins(deed, control);
            }
            runAction(std::forward<Action>(action));
        }
        if (userActionDepth_ == 0 && history != nullptr) {
            history->actionEnded();
        }
    }

    const platform::Services& platform;
    Focus focus;
    Windows windows;
    View* view = nullptr;                   ///< who draws the screens; null where nobody does
    bool ended = false;                     ///< the program has ended; nothing is in the user's reach any more
    std::string_view step;                  ///< what it is doing, where that is named (core/step.h)
    std::unique_ptr<ChangeHistory> history; ///< null where the changes of the user need not be remembered

private:
    class ActionDepth {
    public:
        explicit ActionDepth(Workbench& workbench) : workbench_(workbench) { ++workbench_.actionDepth_; }
        ActionDepth(const ActionDepth&) = delete;
        ActionDepth& operator=(const ActionDepth&) = delete;
        ~ActionDepth() {
            if (--workbench_.actionDepth_ == 0) {
                workbench_.retired_.clear();
            }
        }

    private:
        Workbench& workbench_;
    };

    class UserActionDepth {
    public:
        explicit UserActionDepth(Workbench& workbench) : workbench_(workbench) { ++workbench_.userActionDepth_; }
        UserActionDepth(const UserActionDepth&) = delete;
        UserActionDepth& operator=(const UserActionDepth&) = delete;
        ~UserActionDepth() { --workbench_.userActionDepth_; }

    private:
        Workbench& workbench_;
    };

    template <class ScreenType>
    ScreenType& touchAs(ScreenId id) {
        return static_cast<ScreenType&>(touch(id));
    }

    /// Makes the screen, which does not exist, and runs its load step.
    Screen& create(ScreenId id);
    std::unique_ptr<Screen> makeConnected(ScreenId id);
    std::unique_ptr<Screen> takeSpare(ScreenId id);

    const ScreenLife& lifeOf(ScreenId id) const { return (*wiring_)[static_cast<std::size_t>(id)]; }

    const Wiring* wiring_;
    std::array<std::unique_ptr<Screen>, screenCount> screens_;
    std::vector<Screen*> creationOrder_;
    std::vector<std::unique_ptr<Screen>> retired_;
    std::array<std::unique_ptr<Screen>, screenCount> spare_;  ///< of the starts before, as they were left
    std::array<std::unique_ptr<Screen>, screenCount> asMade_; ///< what a spare one is put back to
    int actionDepth_ = 0;
    int userActionDepth_ = 0;
};

/// The usual trap of a procedure: a failure is shown, the procedure is left with its state as it stands.
template <class Body>
void trapped(Workbench& workbench, Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (const Failure& failure) {
        workbench.showFailure(failure);
    }
}

/// The same for a function: after a failure it gives `otherwise`.
template <class Result, class Body>
Result trappedOr(Workbench& workbench, Result otherwise, Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (const Failure& failure) {
        workbench.showFailure(failure);
        return otherwise;
    }
}

/// Runs a statement whose failure is passed over in silence.
template <class Body>
void silently(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (const Failure&) {
        return;
    }
}

} // namespace wb
