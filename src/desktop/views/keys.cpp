#include "desktop/views/keys.h"

#include <array>

#include "core/input.h"
#include "desktop/base/text_codec.h"

namespace wb::desktop {

namespace {

struct KeyCode {
    int key;
    int code;
};

constexpr std::array<KeyCode, 10> commandKeys = {{{Qt::Key_Backspace, 8},
                                                  {Qt::Key_PageUp, 33},
                                                  {Qt::Key_PageDown, 34},
                                                  {Qt::Key_End, 35},
                                                  {Qt::Key_Home, 36},
                                                  {Qt::Key_Left, 37},
                                                  {Qt::Key_Up, 38},
                                                  {Qt::Key_Right, 39},
                                                  {Qt::Key_Down, 40},
                                                  {Qt::Key_Delete, 46}}};

constexpr std::array<KeyCode, 6> keypadOperators = {
    {{'*', 106}, {'+', 107}, {'-', 109}, {'.', 110}, {',', 110}, {'/', 111}}};
constexpr int keypadZero = 96;

template <std::size_t count>
int find(const std::array<KeyCode, count>& codes, int key) {
    for (const KeyCode& entry : codes) {
        if (entry.key == key) {
            return entry.code;
        }
    }
    return 0;
}

bool isCommand(const QKeyEvent& event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    // Both together are the AltGr key of some systems.
    return control != alt || event.modifiers().testFlag(Qt::MetaModifier);
}

} // namespace

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool types(const QKeyEvent& event) {
    const QString text = event.text();
    return !isCommand(event) && !text.isEmpty() && text.front().category() != QChar::Other_Control;
}

std::optional<char> typedCharacter(const QKeyEvent& event) {
    return types(event) && event.text().size() == 1 ? toCharacter(event.text().front()) : std::nullopt;
}

int typedKeyCode(const QKeyEvent& event, char character) {
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (character >= '0' && character <= '9') {
            return keypadZero + (character - '0');
        }
        if (const int code = find(keypadOperators, character); code != 0) {
            return code;
        }
    }
    return input::keyCodeOf(character);
}

int commandKeyCode(const QKeyEvent& event) {
    const int key = event.key();
    const bool plain = (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
    return plain ? key : find(commandKeys, key);
}

void showFocus(const QWidget& widget) {
    widget.window()->setAttribute(Qt::WA_KeyboardFocusChange);
}

} // namespace wb::desktop
