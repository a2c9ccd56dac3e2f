#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <optional>

/// Keys as the program counts them: characters, and the codes that its KeyUp events carry.
namespace wb::desktop {

bool isEnter(const QKeyEvent& event);
/// Whether the key types a character, be it one that the program has or not.
bool types(const QKeyEvent& event);
/// The character that the key types, or nothing for commands and for characters the program does not have.
std::optional<char> typedCharacter(const QKeyEvent& event);
/// The key code of a key that types, which differs from that of its character on a number pad.
int typedKeyCode(const QKeyEvent& event, char character);
/// The key code of any other key, such as 8 for Backspace; 0 for keys that the program does not know.
int commandKeyCode(const QKeyEvent& event);
/// Lets the window of the widget show which control has the focus, as it does by itself from the first Tab on: to be
/// called where another key moves the focus.
void showFocus(const QWidget& widget);

} // namespace wb::desktop
