#pragma once

#include <string>

#include "core/workbench.h"

/// What a user can do. Both front ends, scripts and the desktop view, call these and nothing else, so that the order of
/// events is the model's. Each that gives a bool gives false, and does nothing, where the user cannot reach the
/// control.
namespace wb::input {

/// Within the user's reach: visible and enabled with all that contains it, on a shown screen, not behind a modal one.
bool reachable(const Control& control);
bool reachable(const Screen& screen);

/// A click moves the focus to a control that takes it, then raises Click: always on an option and a button, with the
/// new value on a check.
bool click(Control& control);
bool doubleClick(Control& control);
bool moveFocus(Control& control);
/// Picks a row of a combo box by number; the row must exist.
bool pick(Control& combo, int row);

/// A character typed into the control that has the focus: KeyPress, the text, KeyUp. 13 is Enter, 8 takes back a
/// character.
bool typeCharacter(Workbench& workbench, char character);
/// The same where the key is not the usual one of the character, such as an operator of the number pad.
bool typeCharacter(Workbench& workbench, char character, int code);
bool enter(Workbench& workbench);
/// A bare key code, for the control that has the focus on the active screen, and for that screen.
bool keyCode(Workbench& workbench, int code);
/// An edit that a widget made by itself (backspace, cut, paste, undo, an input method): the outcome, then KeyUp with
/// the key code, or no key where the code is 0.
bool edit(Control& control, const std::string& text, int selectionStart, int selectionLength, int code);
/// The user changed the selection; no event.
void select(Control& control, int start, int length);

/// A menu entry or a tool bar button.
bool choose(Control& entry);
/// A tool bar button by its key; an unknown key does nothing.
bool toolBar(Workbench& workbench, const std::string& key);
/// The window's own close button.
bool close(Screen& screen);
/// A click on the title bar of a child window, the window list, or the next-window key.
bool activate(Screen& screen);
/// The frame stands somewhere else, in twips; no event. A minimised one keeps the place it had.
void placed(FrmMain& frame, float left, float top, float width, float height);
void minimised(FrmMain& frame, bool isMinimised);
/// The report window has another inner size, in twips.
void resized(FrmDocument& document, int width, int height);

/// The key code of a typed character: that of the upper-case character for letters and digits.
int keyCodeOf(char character);

} // namespace wb::input
