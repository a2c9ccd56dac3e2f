#pragma once

#include "desktop/desktop_program.h"
#include "script/front_end.h"

namespace wb::test {

/// The user of a script at real widgets: clicks go to widgets, keys to the window. What the user can reach is what the
/// widgets say, not the model.
class WidgetFrontEnd : public script::FrontEnd {
public:
    explicit WidgetFrontEnd(DesktopProgram& program) : program_(program) {}

    void start() override { program_.start(); }
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
    bool undo() override;
    bool redo() override;
    bool paste(const std::string& text) override;
    bool find(const std::string& text, bool forward) override;

private:
    /// The widget of the control where the user can reach it, else null.
    QWidget* reach(const Control& control);
    /// An entry that is grey because its command would do nothing: the model runs it, and the trace tells whether that
    /// is true.
    bool chooseGrey(Control& entry);
    /// An entry of the frame's menus that no control stands for; where it is grey, the model runs what it would do.
    bool chooseTool(const QString& name, const std::function<bool()>& model);
    bool pressKey(int key, const QString& text, Qt::KeyboardModifiers modifiers);

    DesktopProgram& program_;
};

} // namespace wb::test
