#include "desktop/tools/timing_calculator.h"

#include <QClipboard>
#include <QToolButton>

#include "adapters/cvt.h"
#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

class TimingCalculator : public DesktopTest {
protected:
    void SetUp() override {
        if (!adapters::missingCvtLibrary().empty()) {
            GTEST_SKIP() << "built without " << adapters::missingCvtLibrary();
        }
        program.openSample("zarqo-z40.bin"); // with editing on, since the image has an extension
    }
    desktop::TimingCalculator& window() { return *program.frame().window().findChild<desktop::TimingCalculator*>(); }
    void open() {
        program.frame().window().findChild<QAction*>("toolsTiming")->trigger();
        DesktopProgram::settle();
    }
    template <class Widget>
    Widget& named(const QString& name) {
        for (Widget* widget : window().findChildren<Widget*>()) {
            if (widget->accessibleName() == name) {
                return *widget;
            }
        }
        throw std::logic_error(name.toStdString());
    }
    std::string number(const QString& name) { return named<QLabel>(name).text().toStdString(); }
    QPushButton& button(const QString& start) {
        for (QPushButton* each : window().findChildren<QPushButton*>()) {
            if (each->text().remove('&').startsWith(start)) {
                return *each;
            }
        }
        throw std::logic_error(start.toStdString());
    }
    /// 1920 by 1080 at 60 Hz with reduced blanking.
    void askForReduced() {
        named<QSpinBox>("Width").setValue(1920);
        named<QSpinBox>("Height").setValue(1080);
        named<QDoubleSpinBox>("Rate").setValue(60);
        window().findChild<QCheckBox*>()->setChecked(true);
    }
    bool says(const QString& words) {
        for (const QLabel* label : window().findChildren<QLabel*>()) {
            if (label->text() == words) {
                return true;
            }
        }
        return false;
    }
    std::string cells(BlockScreen& screen, int first, int count) {
        std::string text;
        for (int i = first; i < first + count; ++i) {
            text += screen.txtEdit(i).text();
        }
        return text;
    }
};

TEST_F(TimingCalculator, BeginsWithTheTimingShown) {
    focus(edid().txtEdit(72));
    open();
    EXPECT_EQ(named<QSpinBox>("Width").value(), 1280);
    EXPECT_EQ(named<QSpinBox>("Height").value(), 720);
    EXPECT_EQ(named<QDoubleSpinBox>("Rate").value(), 60);
    EXPECT_EQ(button("Enter").text().remove('&').toStdString(), "Enter into Detailed Timing (72-89)");
    focus(edid().txtEdit(54));
    EXPECT_EQ(button("Enter").text().remove('&').toStdString(), "Enter into Detailed Timing (54-71)");
    EXPECT_EQ(named<QSpinBox>("Width").value(), 1280) << "what the user has asked for stays";
}

// The numbers are those of the standard's own table for the mode 2.07MA-R.
TEST_F(TimingCalculator, ShowsTheTimingBeforeItIsEntered) {
    focus(edid().txtEdit(54));
    const std::string before = cells(edid(), 54, 18);
    open();
    askForReduced();
    EXPECT_EQ(number("Horizontal active"), "1920");
    EXPECT_EQ(number("Horizontal blanking"), "160");
    EXPECT_EQ(number("Horizontal sync offset"), "48");
    EXPECT_EQ(number("Horizontal pulse width"), "32");
    EXPECT_EQ(number("Horizontal total"), "2080");
    EXPECT_EQ(number("Horizontal polarity"), "+");
    EXPECT_EQ(number("Vertical blanking"), "31");
    EXPECT_EQ(number("Vertical sync offset"), "3");
    EXPECT_EQ(number("Vertical pulse width"), "5");
    EXPECT_EQ(number("Vertical polarity"), "-");
    EXPECT_EQ(number("Horizontal frequency"), "66.59 kHz"); // 138500 / 2080
    EXPECT_EQ(number("Vertical frequency"), "59.93 Hz");    // 66586.5 / 1111
    EXPECT_TRUE(says("Pixel clock 138.50 MHz"));
    EXPECT_EQ(cells(edid(), 54, 18), before);
}

TEST_F(TimingCalculator, EntersItIntoTheTimingShown) {
    focus(edid().txtEdit(54));
    open();
    askForReduced();
    button("Enter").click();
    DesktopProgram::settle();
    EXPECT_EQ(cells(edid(), 54, 18),
              "1A3680A070381F403020350"
              "07AF43100001A");
    EXPECT_TRUE(says("Entered."));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(54)");
}

TEST_F(TimingCalculator, EntersItIntoASlotOfTheExtension) {
    click(frame().Command4);
    focus(cea().txtEdit(29));
    open();
    EXPECT_EQ(button("Enter").text().remove('&').toStdString(), "Enter into Detailed Timing (29-46) of the extension");
    askForReduced();
    button("Enter").click();
    DesktopProgram::settle();
    EXPECT_EQ(cells(cea(), 29, 12), "1A3680A070381F4030203500");
}

TEST_F(TimingCalculator, CopiesTheModeline) {
    open();
    askForReduced();
    button("Copy").click();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              R"(Modeline "1920x1080R"  138.50  1920 1968 2000 2080  1080 1083 1088 1111 +hsync -vsync)");
}

TEST_F(TimingCalculator, TellsWhyNothingCanBeEntered) {
    focus(edid().txtEdit(8));
    open();
    EXPECT_FALSE(button("Enter").isEnabled());
    EXPECT_TRUE(says("To enter it, go to a cell of a detailed timing."));
    focus(edid().txtEdit(54));
    EXPECT_TRUE(button("Enter").isEnabled());
    click(frame().Command2);
    EXPECT_TRUE(says("To enter it, switch Modify EDID on."));
    click(frame().Command2);
    focus(edid().txtEdit(54));
    named<QSpinBox>("Width").setValue(1366);
    EXPECT_FALSE(button("Enter").isEnabled());
    EXPECT_FALSE(button("Copy").isEnabled()) << "no width of the standard";
    named<QSpinBox>("Width").setValue(3840);
    named<QSpinBox>("Height").setValue(2160);
    named<QDoubleSpinBox>("Rate").setValue(120);
    EXPECT_FALSE(button("Enter").isEnabled());
    EXPECT_TRUE(button("Copy").isEnabled()) << "a timing that the cells have no room for";
}

TEST_F(TimingCalculator, HasAButtonBesideTheBox) {
    focus(edid().txtEdit(54));
    auto* box = program.widget(edid().DTInput);
    auto* beside = box->parentWidget()->findChild<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_NE(beside, nullptr);
    EXPECT_TRUE(beside->isVisible());
    EXPECT_GE(beside->x(), box->geometry().right());
    EXPECT_EQ(beside->focusPolicy(), Qt::NoFocus);
    beside->click();
    DesktopProgram::settle();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(54)");
}

} // namespace
} // namespace wb::test
