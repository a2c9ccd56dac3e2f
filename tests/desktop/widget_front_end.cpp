#include "desktop/widget_front_end.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>
#include <QToolBar>
#include <QWindow>
#include <algorithm>
#include <array>

#include "core/input.h"
#include "desktop/base/text_codec.h"
#include "desktop/views/menu_view.h"
#include "desktop/windows/visibility.h"
#include "shell/enter_timing.h"
#include "shell/find_bytes.h"
#include "shell/go_to_byte.h"
#include "shell/paste_bytes.h"

namespace wb::test {

namespace {

constexpr int backspace = 8;

struct BareKey {
    int code;
    Qt::Key key;
    const char* text;
    Qt::KeyboardModifier modifier = Qt::NoModifier;
};

/// Keys that do not type into a text: those of the number pad's operators, and commands that do not move the focus.
constexpr std::array<BareKey, 6> bareKeys = {{{8, Qt::Key_Backspace, ""},
                                              {106, Qt::Key_Asterisk, "*", Qt::KeypadModifier},
                                              {107, Qt::Key_Plus, "+", Qt::KeypadModifier},
                                              {109, Qt::Key_Minus, "-", Qt::KeypadModifier},
                                              {110, Qt::Key_Period, ".", Qt::KeypadModifier},
                                              {111, Qt::Key_Slash, "/", Qt::KeypadModifier}}};

bool isBlocked(const QWidget& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != &window;
}

bool isReachable(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && !isBlocked(*widget.window());
}

/// Where the text of a box and the mark of an option begin.
QPoint edgeOf(const QWidget& widget) {
    constexpr int inside = 6;
    return {inside, widget.height() / 2};
}

bool typesIntoText() {
    const auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    return box != nullptr && !box->isReadOnly();
}

} // namespace

QWidget* WidgetFrontEnd::reach(const Control& control) {
    program_.sync();
    QWidget* widget = program_.widget(control);
    if (widget == nullptr || !isReachable(*widget)) {
        return nullptr;
    }
    desktop::bringIntoSight(*widget);
    return widget;
}

bool WidgetFrontEnd::click(Control& control) {
    if (control.kind() == ControlKind::Menu) {
        return chooseMenu(control);
    }
    QWidget* widget = reach(control);
    if (widget == nullptr) {
        return false;
    }
    if (control.kind() == ControlKind::Combo) {
        static_cast<QComboBox*>(widget)->showPopup(); // what a press does
        static_cast<QComboBox*>(widget)->hidePopup();
    } else if (!widget->hasFocus() || control.kind() != ControlKind::Text) {
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, edgeOf(*widget));
    }
    DesktopProgram::settle();
    return true;
}

bool WidgetFrontEnd::doubleClick(Control& control) {
    QWidget* widget = reach(control);
    if (widget == nullptr) {
        return false;
    }
    const QPointF place = edgeOf(*widget);
    QMouseEvent event(QEvent::MouseButtonDblClick, place, widget->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    DesktopProgram::settle();
    return true;
}

bool WidgetFrontEnd::moveFocus(Control& control) {
    QWidget* widget = reach(control);
    if (widget == nullptr || !control.takesFocus()) {
        return false;
    }
    widget->setFocus(Qt::TabFocusReason);
    DesktopProgram::settle();
    return true;
}

bool WidgetFrontEnd::pick(Control& combo, int row) {
    QWidget* widget = reach(combo);
    if (widget == nullptr) {
        return false;
    }
    auto& box = dynamic_cast<QComboBox&>(*widget);
    box.showPopup();
    DesktopProgram::settle();
    if (box.view()->isVisible()) {
        box.view()->setCurrentIndex(box.model()->index(row, 0));
        QTest::keyClick(box.view(), Qt::Key_Return);
    }
    DesktopProgram::settle();
    return true;
}

bool WidgetFrontEnd::pressKey(int key, const QString& text, Qt::KeyboardModifiers modifiers) {
    program_.sync();
    const QWidget* holder = QApplication::focusWidget();
    if (holder == nullptr || isBlocked(*holder->window())) {
        return false;
    }
    QTest::sendKeyEvent(QTest::Click, holder->window()->windowHandle(), static_cast<Qt::Key>(key), text, modifiers);
    DesktopProgram::settle();
    return true;
}

bool WidgetFrontEnd::typeCharacter(char character) {
    if (character == backspace) {
        return pressKey(Qt::Key_Backspace, "", Qt::NoModifier);
    }
    const QString text = desktop::toUnicode(std::string_view(&character, 1));
    const int key = text.front().toUpper().unicode();
    return pressKey(key, text, Qt::NoModifier);
}

bool WidgetFrontEnd::enter() {
    return pressKey(Qt::Key_Return, "\r", Qt::NoModifier);
}

bool WidgetFrontEnd::keyCode(int code) {
    const auto bare = std::find_if(bareKeys.begin(), bareKeys.end(), [&](const BareKey& k) { return k.code == code; });
    program_.sync();
    const bool hasFocus = QApplication::focusWidget() != nullptr;
    if (hasFocus && bare != bareKeys.end()) {
        return pressKey(bare->key, bare->text, bare->modifier);
    }
    constexpr int firstPrinting = 48;
    constexpr int lastPrinting = 90;
    if (hasFocus && code >= firstPrinting && code <= lastPrinting && !typesIntoText()) {
        return typeCharacter(static_cast<char>(code));
    }
    // No key of a keyboard does this without typing.
    bool reached = false;
    program_.act([&] { reached = input::keyCode(program_.workbench, code); });
    return reached;
}

bool WidgetFrontEnd::chooseMenu(Control& entry) {
    program_.sync();
    auto* view = dynamic_cast<desktop::MenuView*>(program_.view.viewOf(entry));
    QWidget& window = program_.frame().window();
    if (view == nullptr || !window.isVisible() || isBlocked(window) || !view->action().isVisible()) {
        return false;
    }
    if (!view->action().isEnabled()) {
        return chooseGrey(entry);
    }
    for (QObject* owner : view->action().associatedObjects()) {
        if (auto* menu = qobject_cast<QMenu*>(owner)) {
            menu->popup(window.mapToGlobal(QPoint(0, 0)));
            menu->setActiveAction(&view->action());
            QTest::keyClick(menu, Qt::Key_Return);
        }
    }
    DesktopProgram::settle();
    return true;
}

bool WidgetFrontEnd::chooseTool(const QString& name, const std::function<bool()>& model) {
    program_.sync();
    QWidget& window = program_.frame().window();
    auto* action = window.findChild<QAction*>(name);
    if (!window.isVisible() || isBlocked(window)) {
        return false;
    }
    if (!action->isEnabled()) {
        bool done = false;
        program_.act([&] { done = model(); });
        return done;
    }
    action->trigger();
    DesktopProgram::settle();
    return true;
}

bool WidgetFrontEnd::undo() {
    return chooseTool("editUndo", [this] { return program_.workbench.history->undo(); });
}

bool WidgetFrontEnd::redo() {
    return chooseTool("editRedo", [this] { return program_.workbench.history->redo(); });
}

bool WidgetFrontEnd::paste(const std::string& text) {
    bool done = false;
    program_.act([&] { done = shell::pasteBytes(program_.workbench, text).all; });
    return done;
}

bool WidgetFrontEnd::find(const std::string& text, bool forward) {
    bool found = false;
    program_.act([&] {
        found = shell::findBytes(program_.workbench, text,
                                 forward ? shell::Direction::Forward : shell::Direction::Backward);
    });
    return found;
}

bool WidgetFrontEnd::chooseGrey(Control& entry) {
    bool reached = false;
    program_.act([&] { reached = input::choose(entry); });
    return reached;
}

bool WidgetFrontEnd::pressToolBar(const std::string& key) {
    program_.sync();
    auto* bar = program_.frame().window().findChild<QToolBar*>("tbToolBar");
    int place = 0;
    for (QAction* action : bar->actions()) {
        ++place;
        QWidget* button = bar->widgetForAction(action);
        if (action->text().toStdString() == key) {
            if (!isReachable(*button)) {
                return chooseGrey(*program_.workbench.frmMain().find("tbToolBar", place));
            }
            QTest::mouseClick(button, Qt::LeftButton);
            DesktopProgram::settle();
        }
    }
    return true;
}

bool WidgetFrontEnd::drop(const std::string& name) {
    program_.sync();
    QWidget& window = program_.frame().window();
    if (!window.isVisible() || isBlocked(window)) {
        return false;
    }
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(desktop::fromFileNameBytes(name))});
    const QPoint place = window.rect().center(); // on whatever is there
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.windowHandle(), &enter);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.windowHandle(), &event);
    DesktopProgram::settle();
    return true;
}

bool WidgetFrontEnd::goToByte(int byte) {
    bool done = false;
    program_.act([&] { done = shell::goToByte(program_.workbench, byte); });
    return done;
}

bool WidgetFrontEnd::enterTiming(int byte, const fields::Modeline& modeline) {
    bool done = false;
    program_.act([&] { done = shell::enterTiming(program_.workbench, byte, modeline); });
    return done;
}

bool WidgetFrontEnd::close(Screen& screen) {
    program_.sync();
    desktop::ScreenView* view = program_.view.viewOf(screen);
    if (view == nullptr || !isReachable(view->window())) {
        return false;
    }
    view->window().close();
    DesktopProgram::settle();
    return true;
}

} // namespace wb::test
