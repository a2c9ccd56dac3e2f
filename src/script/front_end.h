#pragma once

#include <string>

#include "core/workbench.h"
#include "fields/modeline.h"

namespace wb::script {

/// The user of a script: carries out what a user can do, on the model itself or on the widgets of a view. Each action
/// gives false, and does nothing, where the user cannot reach the control.
class FrontEnd {
public:
    virtual ~FrontEnd() = default;

    /// Starts the program: splash and frame.
    virtual void start() = 0;

    virtual bool click(Control& control) = 0;
    virtual bool doubleClick(Control& control) = 0;
    virtual bool moveFocus(Control& control) = 0;
    /// Picks a row of a combo box; the row exists.
    virtual bool pick(Control& combo, int row) = 0;
    /// Types a character into the control that has the focus.
    virtual bool typeCharacter(char character) = 0;
    virtual bool enter() = 0;
    /// A bare key code, to the active screen.
    virtual bool keyCode(int code) = 0;
    virtual bool chooseMenu(Control& entry) = 0;
    /// Presses the tool bar button of that key, which exists.
    virtual bool pressToolBar(const std::string& key) = 0;
    /// The window's own close button.
    virtual bool close(Screen& screen) = 0;
    /// Drops a file on the frame.
    virtual bool drop(const std::string& name) = 0;
    /// Picks a byte of the image where something tells of it.
    virtual bool goToByte(int byte) = 0;
    /// Enters a timing into the detailed block that begins at a byte of the image.
    virtual bool enterTiming(int byte, const fields::Modeline& modeline) = 0;
    /// Takes the last change of the image back, and makes it again.
    virtual bool undo() = 0;
    virtual bool redo() = 0;
    /// Pastes pairs of digits from the cell that has the focus on; false where some are left.
    virtual bool paste(const std::string& text) = 0;
    /// Looks for bytes or a text in the cells, behind the one that has the focus or in front of it.
    virtual bool find(const std::string& text, bool forward) = 0;
};

/// Acts on the model directly, without any view. The program remembers the changes from then on.
class ModelFrontEnd : public FrontEnd {
public:
    explicit ModelFrontEnd(Workbench& workbench);

    void start() override;
    bool click(Control& control) override;
    bool doubleClick(Control& control) override;
    bool moveFocus(Control& control) override;
    bool pick(Control& combo, int row) override;
    bool typeCharacter(char character) override;
    bool enter() override;
    bool keyCode(int code) override;
    bool chooseMenu(Control& entry) override;
    bool pressToolBar(const std::string& key) override;
    bool close(Screen& screen) override;
    bool drop(const std::string& name) override;
    bool goToByte(int byte) override;
    bool enterTiming(int byte, const fields::Modeline& modeline) override;
    bool undo() override { return workbench_->history->undo(); }
    bool redo() override { return workbench_->history->redo(); }
    bool paste(const std::string& text) override;
    bool find(const std::string& text, bool forward) override;

private:
    Workbench* workbench_;
};

} // namespace wb::script
