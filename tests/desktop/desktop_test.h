#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWindow>
#include <string>
#include <utility>
#include <vector>

#include "core/input.h"
#include "desktop/desktop_program.h"

namespace wb::test {

/// Tests over a started program with real widgets. A box that a test does not expect fails it.
class DesktopTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(takeBoxes(), std::vector<std::string>()); }

    std::vector<std::string> takeBoxes() { return std::exchange(program.boxes, {}); }

    FrmMain& frame() { return program.workbench.frmMain(); }
    FrmEdid& edid() { return program.workbench.frmEDID(); }
    FrmCeaExt& cea() { return program.workbench.frmCEA_EXT(); }

    /// Switches Modify EDID on.
    void modify() {
        program.act([&] { input::click(frame().Command2); });
    }
    void focus(Control& control) {
        program.act([&] { input::moveFocus(control); });
    }
    /// A key sent to the window that has the focus.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWindow(), key, text, modifiers);
        DesktopProgram::settle();
    }
    static void type(const QString& text) {
        for (const QChar character : text) {
            press(static_cast<Qt::Key>(character.toUpper().unicode()), Qt::NoModifier, character);
        }
    }
    void click(const Control& control) {
        QWidget& target = *program.widget(control);
        QTest::mouseClick(&target, Qt::LeftButton, Qt::NoModifier, QPoint(6, target.height() / 2));
        DesktopProgram::settle();
    }
    std::string focused() {
        const Control* control = program.workbench.focus.current();
        return control != nullptr ? control->fullName() : "none";
    }
    static std::string qtFocused() {
        const QWidget* widget = QApplication::focusWidget();
        return widget != nullptr ? widget->objectName().toStdString() : "none";
    }

    DesktopProgram program;
};

} // namespace wb::test
