#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "desktop/desktop_test.h"
#include "desktop/windows/child_placing.h"
#include "desktop/windows/frame_size.h"

namespace wb::test {
namespace {

TEST(FrameSize, StandsForTheWholeByDefaultAndInProportionToIt) {
    const desktop::FrameSize size(QSize(1300, 650));
    EXPECT_EQ(size.toPixels(6500, 6500), QSize(1300, 650));
    EXPECT_EQ(size.toPixels(3250, 13000), QSize(650, 1300));
    EXPECT_FLOAT_EQ(size.widthInTwips(1000), 5000);
    EXPECT_FLOAT_EQ(size.heightInTwips(1000), 10000);
}

TEST(FrameSize, GivesNoPixelsThatNoWindowHas) {
    const desktop::FrameSize size(QSize(1300, 650));
    EXPECT_EQ(size.toPixels(-1, 3e38F), QSize(0, QWIDGETSIZE_MAX));
}

TEST(MovedInside, MovesFirstAndShrinksWhereThatIsNotEnough) {
    const QRect room(0, 20, 1000, 500);
    EXPECT_EQ(desktop::movedInside(QRect(10, 30, 100, 100), room), QRect(10, 30, 100, 100));
    EXPECT_EQ(desktop::movedInside(QRect(950, 0, 100, 100), room), QRect(900, 20, 100, 100));
    EXPECT_EQ(desktop::movedInside(QRect(-5, 500, 100, 100), room), QRect(0, 420, 100, 100));
    EXPECT_EQ(desktop::movedInside(QRect(67, 67, 2000, 2000), room), room);
}

TEST(OpeningPlace, IsBesideOrBelowTheOthersWhereThereIsRoom) {
    const QSize area(1000, 600);
    EXPECT_EQ(desktop::openingPlace(area, {400, 300}, {}, 20), QRect(0, 0, 400, 300));
    EXPECT_EQ(desktop::openingPlace(area, {400, 300}, {{0, 0, 500, 600}}, 20), QRect(500, 0, 400, 300));
    EXPECT_EQ(desktop::openingPlace(area, {600, 300}, {{0, 0, 500, 300}}, 20), QRect(0, 300, 600, 300));
    EXPECT_EQ(desktop::openingPlace(area, {400, 300}, {{0, 0, 500, 300}, {500, 0, 500, 300}}, 20),
              QRect(0, 300, 400, 300));
    EXPECT_EQ(desktop::openingPlace(area, {400, 300}, {{600, 0, 400, 600}}, 20), QRect(0, 0, 400, 300));
}

TEST(OpeningPlace, IsAStepFurtherAndInsideWhereThereIsNone) {
    const QSize area(1000, 600);
    EXPECT_EQ(desktop::openingPlace(area, {900, 600}, {{0, 0, 900, 600}}, 20), QRect(20, 20, 900, 580));
    EXPECT_EQ(desktop::openingPlace(area, {2000, 900}, {{20, 20, 980, 580}, {0, 0, 1000, 600}}, 20),
              QRect(40, 40, 960, 560));
    EXPECT_EQ(desktop::openingPlace(area, {900, 600}, {{600, 400, 400, 200}, {0, 0, 700, 500}}, 20),
              QRect(20, 20, 900, 580))
        << "the stairs start anew in time";
}

class Places : public DesktopTest {
protected:
    QMdiArea& area() { return program.frame().area(); }
    QRect room() { return area().viewport()->rect(); }
    /// The place of a child's window in the area.
    QRect placeOf(const Screen& screen) { return program.window(screen).geometry(); }
    void resizeFrame(int width, int height) {
        program.frame().window().resize(width, height);
        DesktopProgram::settle();
    }
    void openCalculator() {
        program.act([&] { input::choose(frame().HexCalculator); });
    }
    FrmHexCalculator& calculator() { return program.workbench.frmHexCalculator(); }
    const Screen& report() { return program.workbench.frmDocument(); }
    bool scrolls(const Screen& screen) {
        const auto* page = program.window(screen).findChild<QScrollArea*>();
        return page->horizontalScrollBar()->isVisible() || page->verticalScrollBar()->isVisible();
    }
};

TEST_F(Places, OfTheFrameAreOnTheScreenAndShowTheWholeOfBlock0) {
    const QRect screen = program.frame().window().screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(program.frame().window().geometry()));
    program.newImage();
    for (const int cell : {8, 20, 54, 90}) {
        focus(edid().txtEdit(cell));
    }
    EXPECT_TRUE(room().contains(placeOf(edid())));
    EXPECT_FALSE(scrolls(edid()));
}

TEST_F(Places, OfTheFrameNeverPassTheScreen) {
    program.act([&] { frame().setPosition(1000, 1000, 65000, 65000); });
    const QRect screen = program.frame().window().screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(program.frame().window().geometry()));
    EXPECT_EQ(frame().Width, 65000) << "the stored size is kept until the user changes it";
}

TEST_F(Places, AreBesideEachOtherWhereThereIsRoom) {
    resizeFrame(2600, 900);
    program.newImage(true);
    click(frame().Command4);
    click(frame().Command1);
    EXPECT_EQ(placeOf(cea()).x(), placeOf(edid()).x() + placeOf(edid()).width());
    for (const Screen* screen : {static_cast<const Screen*>(&edid()), static_cast<const Screen*>(&cea()), &report()}) {
        EXPECT_TRUE(room().contains(placeOf(*screen))) << screen->name();
        EXPECT_FALSE(scrolls(*screen)) << screen->name();
    }
    EXPECT_FALSE(placeOf(report()).intersects(placeOf(edid())));
    EXPECT_FALSE(placeOf(report()).intersects(placeOf(cea())));
}

TEST_F(Places, AreInsideASmallFrameAndNotExactlyOverEachOther) {
    resizeFrame(700, 420);
    program.newImage(true);
    click(frame().Command4);
    click(frame().Command1);
    for (const Screen* screen : {static_cast<const Screen*>(&edid()), static_cast<const Screen*>(&cea()), &report()}) {
        EXPECT_TRUE(room().contains(placeOf(*screen))) << screen->name();
    }
    EXPECT_NE(placeOf(cea()).topLeft(), placeOf(edid()).topLeft());
    EXPECT_NE(placeOf(report()).topLeft(), placeOf(cea()).topLeft());
    EXPECT_NE(placeOf(report()).topLeft(), placeOf(edid()).topLeft());
}

TEST_F(Places, FollowTheFrameUntilTheUserChoosesASize) {
    program.newImage();
    const QSize whole = placeOf(edid()).size();
    resizeFrame(500, 400);
    EXPECT_TRUE(room().contains(placeOf(edid())));
    resizeFrame(1200, 900);
    EXPECT_EQ(placeOf(edid()).size(), whole);
    program.window(edid()).resize(300, 200);
    resizeFrame(1000, 800);
    EXPECT_EQ(placeOf(edid()).size(), QSize(300, 200));
}

TEST_F(Places, AreAsLargeWithBarsOfTheAreaAsWithoutThem) {
    resizeFrame(500, 400);
    program.newImage();
    program.window(edid()).move(200, 20);
    resizeFrame(510, 410);
    const QRect alone = placeOf(edid());
    ASSERT_FALSE(area().verticalScrollBar()->isVisible());
    openCalculator();
    program.window(edid()).setGeometry(alone);
    program.window(calculator()).setGeometry(0, room().height() - 20, 100, 100);
    DesktopProgram::settle();
    EXPECT_TRUE(area().verticalScrollBar()->isVisible());
    EXPECT_EQ(placeOf(edid()).size(), alone.size());
}

TEST_F(Places, OfTheOthersAreGivenBackWhenTheCalculatorCloses) {
    resizeFrame(1100, 900);
    program.newImage(true);
    click(frame().Command4);
    for (const int cell : {18, 20, 25, 38, 54, 71, 90}) { // the panels ask for their room
        focus(edid().txtEdit(cell));
    }
    const QRect first = placeOf(edid());
    program.window(cea()).setGeometry(10, 10, 444, 333);
    openCalculator();
    EXPECT_EQ(placeOf(calculator()).height(), room().height()) << "tiled";
    EXPECT_EQ(placeOf(edid()).width(), room().width() / 3);
    program.act([&] { input::close(calculator()); });
    EXPECT_EQ(placeOf(edid()), first);
    EXPECT_EQ(placeOf(cea()), QRect(10, 10, 444, 333));
}

TEST_F(Places, ThatTheUserChoseBesideTheCalculatorStay) {
    program.newImage();
    openCalculator();
    program.window(edid()).setGeometry(5, 6, 300, 200);
    program.act([&] { input::close(calculator()); });
    EXPECT_EQ(placeOf(edid()), QRect(5, 6, 300, 200));
}

TEST_F(Places, OfTheCalculatorsKeysAreReachedInANarrowTile) {
    program.newImage();
    openCalculator();
    QMdiSubWindow& window = dynamic_cast<QMdiSubWindow&>(program.window(calculator()));
    const int natural = window.sizeHint().width();
    EXPECT_LT(natural, 300) << "keys are no wider than they must be";
    window.resize(150, 200);
    DesktopProgram::settle();
    focus(calculator().Command1(5)); // away from the first key
    const QWidget& page = *window.findChild<QScrollArea*>()->viewport();
    for (int key = 0; key <= calculator().Command1.last(); ++key) {
        Control& button = calculator().Command1(key);
        if (button.enabled()) {
            focus(button);
            const QWidget& widget = *program.widget(button);
            EXPECT_TRUE(page.rect().contains(QRect(widget.mapTo(&page, QPoint(0, 0)), widget.size()))) << key;
        }
    }
}

TEST_F(Places, OfTheCalculatorsBoxesAreNamed) {
    program.newImage();
    openCalculator();
    const std::pair<Control&, QString> names[] = {{calculator().Display, "Display"},
                                                  {calculator().ResultsCell, "Left operand"},
                                                  {calculator().CurrentCell, "Current number"}};
    for (const auto& [box, name] : names) {
        const QWidget& widget = *program.widget(box);
        EXPECT_EQ(widget.accessibleName(), name);
        const QLabel* beside = nullptr;
        for (const QLabel* label : widget.parentWidget()->findChildren<QLabel*>()) {
            if (label->text() == name) {
                beside = label;
            }
        }
        ASSERT_NE(beside, nullptr) << name.toStdString();
        EXPECT_LT(beside->geometry().right(), widget.x());
        EXPECT_NEAR(beside->geometry().center().y(), widget.geometry().center().y(), 2);
    }
}

} // namespace
} // namespace wb::test
