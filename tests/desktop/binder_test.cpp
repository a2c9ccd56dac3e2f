#include <QAccessible>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <functional>
#include <set>
#include <stdexcept>

#include "desktop/base/text_codec.h"
#include "desktop/desktop_test.h"
#include "desktop/views/menu_view.h"
#include "desktop/windows/child_view.h"
#include "desktop/windows/screen_page.h"

namespace wb::test {
namespace {

using Binder = DesktopTest;

/// Every screen that has controls, created.
std::vector<Screen*> allScreens(Workbench& workbench) {
    std::vector<Screen*> screens;
    for (const ScreenId id : {ScreenId::Main, ScreenId::Edid, ScreenId::CeaExt, ScreenId::Document,
                              ScreenId::HexCalculator, ScreenId::Help, ScreenId::EdidReg, ScreenId::About}) {
        screens.push_back(&workbench.touch(id));
    }
    return screens;
}

TEST_F(Binder, GivesEveryControlAWidgetOfItsOwn) {
    std::vector<Screen*> screens;
    program.act([&] { screens = allScreens(program.workbench); });
    std::set<const void*> widgets;
    for (const Screen* screen : screens) {
        for (const Control* control : screen->controls()) {
            desktop::ControlView* view = program.view.viewOf(*control);
            ASSERT_NE(view, nullptr) << control->fullName();
            const auto* entry = dynamic_cast<desktop::MenuView*>(view);
            const void* made = entry != nullptr ? static_cast<const void*>(&entry->action()) : view->widget();
            ASSERT_NE(made, nullptr) << control->fullName();
            EXPECT_TRUE(widgets.insert(made).second) << control->fullName();
            EXPECT_EQ(entry != nullptr, control->kind() == ControlKind::Menu) << control->fullName();
        }
    }
}

std::string mistakeOf(const std::function<void()>& lookUp) {
    try {
        lookUp();
    } catch (const std::logic_error& mistake) {
        return mistake.what();
    }
    return "none";
}

TEST_F(Binder, NamesWhatALayoutMisspells) {
    program.newImage();
    EXPECT_EQ(&desktop::controlAt(edid(), "txtEdit", 127), &edid().txtEdit(127));
    EXPECT_EQ(mistakeOf([&] { desktop::controlAt(edid(), "txtEdit", 128); }), "frmEDID has no txtEdit(128)");
    EXPECT_EQ(mistakeOf([&] { desktop::controlAt(edid(), "txtBrant", Control::noIndex); }), "frmEDID has no txtBrant");
    EXPECT_EQ(mistakeOf([] { desktop::layoutOf(ScreenId::Edid).at("#gird"); }), "the layout has no area #gird");
}

TEST_F(Binder, GivesEveryWidgetAnAccessibleName) {
    std::vector<Screen*> screens;
    program.act([&] { screens = allScreens(program.workbench); });
    for (const Screen* screen : screens) {
        for (const Control* control : screen->controls()) {
            QWidget* widget = program.widget(*control);
            if (widget == nullptr) {
                continue; // a menu entry: its text is its name
            }
            const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).trimmed();
            const auto* label = qobject_cast<QLabel*>(widget);
            const bool isEmpty = label != nullptr && label->text().trimmed().isEmpty() && label->pixmap().isNull();
            EXPECT_TRUE(isEmpty || !name.isEmpty()) << control->fullName();
        }
    }
}

TEST_F(Binder, LooksAtScreensWithoutTouchingThem) {
    program.newImage();
    EXPECT_EQ(program.workbench.loaded(ScreenId::CeaExt), nullptr);
    EXPECT_EQ(program.workbench.loaded(ScreenId::Document), nullptr);
}

TEST_F(Binder, FollowsProperties) {
    program.newImage(true);
    program.act([&] {
        edid().txtBrand.setText("abc");
        edid().txtBrand.setLocked(true);
        edid().lbVendor(2).setCaption("two\r\nlines");
        edid().lbVendor(2).setFontBold(true);
        edid().DT(3).setCaption("&Active");
        edid().DT(3).changeValue(-1);
        edid().ET1(1).changeValue(1);
        edid().Hints(9).setVisible(true);
        edid().Hints(9).setEnabled(false);
        edid().DTInput.setVisible(false);
        edid().frmStereo.setCaption("Stereo?");
        cea().TagCBox.changeValue(31);
    });
    EXPECT_EQ(program.widgetAs<QLineEdit>(edid().txtBrand).text(), "abc");
    EXPECT_TRUE(program.widgetAs<QLineEdit>(edid().txtBrand).isReadOnly());
    EXPECT_EQ(program.widgetAs<QLabel>(edid().lbVendor(2)).text(), "two\nlines");
    EXPECT_TRUE(program.widget(edid().lbVendor(2))->font().bold());
    EXPECT_FALSE(program.widget(edid().lbVendor(1))->font().bold());
    EXPECT_EQ(program.widgetAs<QRadioButton>(edid().DT(3)).text(), "&Active");
    EXPECT_TRUE(program.widgetAs<QRadioButton>(edid().DT(3)).isChecked());
    EXPECT_TRUE(program.widgetAs<QCheckBox>(edid().ET1(1)).isChecked());
    EXPECT_TRUE(program.widget(edid().Hints(9))->isVisible());
    EXPECT_FALSE(program.widget(edid().DT(3))->isEnabled()) << "a disabled panel disables all it contains";
    EXPECT_TRUE(program.widget(edid().DTInput)->isHidden());
    EXPECT_EQ(program.widgetAs<QGroupBox>(edid().frmStereo).title(), "Stereo?");
    EXPECT_EQ(program.widgetAs<QComboBox>(cea().TagCBox).currentText(), "31");
}

TEST_F(Binder, ShowsLabelsAsPlainText) {
    program.newImage();
    program.act([&] { edid().lbVendor(1).setCaption("4941(&<b>I</b>)"); });
    const auto& label = program.widgetAs<QLabel>(edid().lbVendor(1));
    EXPECT_EQ(label.text(), "4941(&<b>I</b>)");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.buddy(), nullptr) << "without a buddy an ampersand is a character like others";
}

TEST_F(Binder, ShowsChangesOnceWhenTheCallHasReturned) {
    program.newImage();
    auto& box = program.widgetAs<QLineEdit>(edid().txtModel);
    int changes = 0;
    QObject::connect(&box, &QLineEdit::textChanged, &box, [&] { ++changes; });
    program.gate.run([&] {
        edid().txtModel.setText("first");
        edid().txtModel.setText("second");
        EXPECT_EQ(box.text(), "");
    });
    EXPECT_EQ(box.text(), "second");
    EXPECT_EQ(changes, 0) << "an assignment must not look like the user's own edit";
}

TEST_F(Binder, ShowsChangesBeforeAnEventLoopInsideACall) {
    program.newImage();
    program.gate.run([&] {
        edid().txtModel.setText("soon");
        program.gate.announceEventLoop();
        EXPECT_EQ(program.widgetAs<QLineEdit>(edid().txtModel).text(), "soon");
    });
}

TEST_F(Binder, ChangesNoTextByShowingIt) {
    program.newImage();
    std::string all;
    for (int code = 0; code < 256; ++code) {
        all += static_cast<char>(code);
    }
    program.act([&] { edid().txtBrand.setText(all); });
    EXPECT_EQ(desktop::fromUnicode(program.widgetAs<QLineEdit>(edid().txtBrand).text()), all);
    EXPECT_EQ(edid().txtBrand.text(), all);
}

TEST_F(Binder, KeepsTheOptionsOfOneArrayExclusiveAcrossFrames) {
    program.newImage();
    modify();
    focus(edid().txtEdit(54));
    // A timing: its first three bytes are not all zero.
    program.act([&] { edid().txtEdit(54).setText("01"); });
    focus(edid().txtEdit(56));
    ASSERT_TRUE(program.widget(edid().DT(1))->isVisible());
    EXPECT_TRUE(program.widgetAs<QRadioButton>(edid().DT(1)).isChecked());
    click(edid().DT(3)); // stands in the other frame
    EXPECT_TRUE(program.widgetAs<QRadioButton>(edid().DT(3)).isChecked());
    EXPECT_FALSE(program.widgetAs<QRadioButton>(edid().DT(1)).isChecked());
    program.act([&] { edid().DT.deselect(); });
    for (int i = edid().DT.first(); i <= edid().DT.last(); ++i) {
        const QRadioButton& option = program.widgetAs<QRadioButton>(edid().DT(i));
        EXPECT_FALSE(option.isChecked()) << "the model may have none selected";
        EXPECT_FALSE(option.group()->exclusive()) << "the widgets leave it to the model";
    }
}

TEST_F(Binder, LetsTwoArraysOfOneFrameBothHaveASelection) {
    program.newImage();
    program.act([&] {
        edid().Hints(11).setVisible(true);
        edid().Hints(11).setEnabled(true);
        edid().DtaOptWhite(0).changeValue(-1);
        edid().DtaOpt(1).changeValue(-1);
        edid().DTa(2).changeValue(-1);
    });
    EXPECT_TRUE(program.widgetAs<QRadioButton>(edid().DtaOptWhite(0)).isChecked());
    EXPECT_TRUE(program.widgetAs<QRadioButton>(edid().DtaOpt(1)).isChecked());
    EXPECT_TRUE(program.widgetAs<QRadioButton>(edid().DTa(2)).isChecked());
}

TEST_F(Binder, LeavesASelectedOptionSelectedWhenItIsClicked) {
    program.newImage();
    modify();
    focus(edid().txtEdit(20));
    ASSERT_TRUE(program.widgetAs<QRadioButton>(edid().VideoMode(0)).isChecked());
    click(edid().VideoMode(0));
    EXPECT_TRUE(program.widgetAs<QRadioButton>(edid().VideoMode(0)).isChecked());
}

TEST_F(Binder, TakesTheStateOfACheckFromTheModel) {
    program.newImage();
    modify();
    focus(edid().txtEdit(35));
    click(edid().ET1(0));
    EXPECT_EQ(edid().txtEdit(35).text(), "80");
    EXPECT_TRUE(program.widgetAs<QCheckBox>(edid().ET1(0)).isChecked());
    click(edid().ET1(0));
    EXPECT_EQ(edid().txtEdit(35).text(), "00");
    EXPECT_FALSE(program.widgetAs<QCheckBox>(edid().ET1(0)).isChecked());
}

TEST_F(Binder, TellsClicksOnTheLabelsThatListen) {
    program.newImage();
    modify();
    program.act([&] { edid().txtEdit(54).setText("01"); });
    focus(edid().txtEdit(71));
    ASSERT_EQ(edid().SyncLine.caption(), "Sync On Green");
    click(edid().SyncLine);
    EXPECT_EQ(edid().txtEdit(71).text(), "02");
    EXPECT_EQ(program.widgetAs<QLabel>(edid().SyncLine).text(), "Sync on RGB");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(71)") << "a label does not take the focus";
}

TEST_F(Binder, TellsADoubleClickOnAPanel) {
    program.newImage();
    modify();
    focus(edid().txtEdit(72));
    QTest::mouseDClick(program.widget(edid().Hints(11)), Qt::LeftButton);
    DesktopProgram::settle();
    EXPECT_EQ(edid().txtEdit(75).text(), "FF");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(75)");
}

TEST_F(Binder, ForgetsAScreenThatHasGone) {
    program.newImage();
    Control* const cell = &edid().txtEdit(0);
    desktop::ControlView* view = program.view.viewOf(*cell);
    program.act([&] {
        program.workbench.windows.unload(ScreenId::Edid);
        view->act([](Control&) { FAIL() << "the control has gone"; });
    });
    EXPECT_EQ(program.workbench.loaded(ScreenId::Edid), nullptr);
    EXPECT_TRUE(program.frame().area().subWindowList().isEmpty() ||
                program.frame().area().subWindowList().front()->isHidden());
    program.newImage();
    EXPECT_TRUE(program.window(edid()).isVisible());
}

} // namespace
} // namespace wb::test
