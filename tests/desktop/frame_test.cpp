#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>
#include <set>

#include "desktop/desktop_test.h"
#include "desktop/views/menu_view.h"

namespace wb::test {
namespace {

class Frame : public DesktopTest {
protected:
    QMainWindow& window() { return program.frame().window(); }
    QAction& action(Control& entry) { return dynamic_cast<desktop::MenuView&>(*program.view.viewOf(entry)).action(); }
    QMenu& menu(const QString& title) {
        const QList<QAction*> menus = window().menuBar()->actions();
        return *(*std::find_if(menus.begin(), menus.end(), [&](const QAction* menu) {
                    return menu->text() == title;
                }))->menu();
    }
    QStringList entriesOf(const QString& title) {
        QStringList texts;
        for (const QAction* entry : menu(title).actions()) {
            texts += entry->isSeparator() ? "-" : entry->text();
        }
        return texts;
    }
};

TEST_F(Frame, HasTheMenusWithTheirMnemonics) {
    QStringList top;
    for (const QAction* menu : window().menuBar()->actions()) {
        top += menu->text();
    }
    EXPECT_EQ(top, QStringList({"&File", "&Edit", "V&iew", "&Window", "&Tools", "&Help"}));
    EXPECT_EQ(entriesOf("&File").mid(0, 16),
              QStringList({"&New", "&Open...", "&Close", "-", "&Save", "Save &As...", "-", "Page Set&up...",
                           "Print Pre&view", "&Print...", "-", "&Export Hexadecimal EDID File", "&Hex Calculator",
                           "Retreive EDID Data", "Windows 2000 Base Location", "-"}));
    EXPECT_EQ(entriesOf("&File").mid(16), QStringList({"&Import...", "Export I&mage", "&Recent Files", "-", "E&xit"}));
    EXPECT_EQ(entriesOf("&Window"), QStringList({"&Cascade", "Tile &Horizontal", "Tile &Vertical", "&Arrange Icons"}));
    EXPECT_EQ(entriesOf("&Help"), QStringList({"&Information", "&About ", "&Keys"}));
}

TEST_F(Frame, HasNothingToReadInASeparator) {
    ASSERT_TRUE(action(frame().mnuFileBar0).isSeparator());
    EXPECT_EQ(action(frame().mnuFileBar0).text(), "");
    EXPECT_EQ(action(frame().mnuFileBar0).iconText(), "");
}

TEST_F(Frame, HasThePlatformsStandardKeys) {
    EXPECT_EQ(action(frame().mnuFileNew).shortcut(), QKeySequence("Ctrl+N"));
    EXPECT_EQ(action(frame().mnuFileOpen).shortcut(), QKeySequence("Ctrl+O"));
    EXPECT_EQ(action(frame().mnuFileSave).shortcut(), QKeySequence("Ctrl+S"));
    EXPECT_EQ(action(frame().mnuFilePrint).shortcut(), QKeySequence("Ctrl+P"));
    EXPECT_EQ(action(frame().mnuFileClose).shortcuts(), QList<QKeySequence>({QKeySequence("Ctrl+W")}));
    EXPECT_EQ(action(frame().Info).shortcuts(), QKeySequence::keyBindings(QKeySequence::HelpContents));
}

TEST_F(Frame, ClosesByTheKeyOfTheMenu) {
    program.newImage();
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(program.workbench.loaded(ScreenId::Edid), nullptr) << "no second owner of the key makes it ambiguous";
}

TEST_F(Frame, ListsTheChildrenInTheWindowMenu) {
    program.newImage();
    program.act([&] { input::choose(frame().HexCalculator); });
    EXPECT_EQ(entriesOf("&Window").mid(4), QStringList({"-", "&1 Hex Calculator", "&2 Edid Decoding Screen"}));
    const QPointer<QAction> entry = menu("&Window").actions()[6];
    bool alive = false;
    QObject::connect(window().menuBar(), &QMenuBar::triggered, window().menuBar(), [&] { alive = !entry.isNull(); });
    press(Qt::Key_W, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_2);
    EXPECT_TRUE(alive) << "the choice lists the children anew while Qt still tells of the entry";
    EXPECT_EQ(program.workbench.windows.activeChild(), &edid());
    DesktopProgram::settle();
    EXPECT_EQ(entriesOf("&Window").mid(4), QStringList({"-", "&1 Edid Decoding Screen", "&2 Hex Calculator"}));
    const QList<QAction*> entries = menu("&Window").actions();
    EXPECT_TRUE(entries[5]->isChecked());
    EXPECT_FALSE(entries[6]->isChecked());
}

TEST_F(Frame, FollowsThePropertiesOfAMenuEntry) {
    program.act([&] {
        frame().mnuFileSave.setEnabled(false);
        frame().Windows2000.setVisible(false);
        frame().mnuFileSave.setCaption("&Store");
    });
    EXPECT_FALSE(action(frame().mnuFileSave).isEnabled());
    EXPECT_FALSE(action(frame().Windows2000).isVisible());
    EXPECT_EQ(action(frame().mnuFileSave).text(), "&Store");
}

TEST_F(Frame, HasAToolBarWithIconsAndTips) {
    const auto* bar = window().findChild<QToolBar*>("tbToolBar");
    ASSERT_NE(bar, nullptr);
    QStringList tips;
    for (const QAction* button : bar->actions()) {
        EXPECT_FALSE(button->icon().isNull()) << button->text().toStdString();
        tips += button->toolTip();
    }
    EXPECT_EQ(tips, QStringList({"New", "Open", "Save", "Print Preview", "Print", "Displays Calculator",
                                 "Retrieve EDID Data"}));
}

TEST_F(Frame, DrawsEachToolBarIconDifferently) {
    std::set<QByteArray> pictures;
    for (const FrmMain::ToolBarKey& key : FrmMain::toolBarKeys) {
        const QImage image =
            action(frame().tbToolBar(1 + static_cast<int>(pictures.size()))).icon().pixmap(24).toImage();
        const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
        EXPECT_TRUE(pictures.insert(bytes).second) << key.key;
        EXPECT_GT(bytes.count('\0'), 0) << "the ground is clear";
        EXPECT_LT(bytes.count('\0'), bytes.size()) << "something is drawn";
    }
}

TEST_F(Frame, HasAStatusBarWithAClock) {
    EXPECT_EQ(program.widgetAs<QLabel>(frame().sbStatusBar).text(), "Status");
    bool hasClock = false;
    for (const QLabel* label : window().statusBar()->findChildren<QLabel*>()) {
        hasClock = hasClock || (label->accessibleName() == "Clock" && !label->text().isEmpty());
    }
    EXPECT_TRUE(hasClock);
}

TEST_F(Frame, StandsWhereTheModelSays) {
    program.act([&] { frame().setPosition(150, 300, 3250, 4875); });
    EXPECT_EQ(window().pos(), QPoint(10, 20)); // 15 twips are a pixel at 96 dots an inch
    const QSize first = window().size();
    program.act([&] { frame().setPosition(150, 300, 4875, 3250); });
    EXPECT_NEAR(first.width() * 1.5, window().width(), 1);
    EXPECT_NEAR(first.height() / 1.5, window().height(), 1);
    EXPECT_EQ(frame().Left, 150) << "what the model asked for is not rounded to pixels";
    EXPECT_EQ(frame().Height, 3250);
}

TEST_F(Frame, StandsWhereTheUserPutsIt) {
    window().move(100, 40);
    window().resize(400, 300);
    DesktopProgram::settle();
    EXPECT_EQ(frame().Left, 1500);
    EXPECT_EQ(frame().Top, 600);
    const float width = frame().Width;
    const float height = frame().Height;
    window().resize(600, 600);
    DesktopProgram::settle();
    EXPECT_FLOAT_EQ(frame().Width, width * 1.5F);
    EXPECT_FLOAT_EQ(frame().Height, height * 2);
    program.act([&] { frame().setPosition(1500, 600, width, height); });
    EXPECT_EQ(window().size(), QSize(400, 300)) << "what is stored gives the same window again";
}

TEST_F(Frame, TellsTheModelThatItIsMinimised) {
    const float width = frame().Width;
    window().showMinimized();
    DesktopProgram::settle();
    EXPECT_TRUE(frame().minimised);
    EXPECT_EQ(frame().Width, width);
    window().showNormal();
    DesktopProgram::settle();
    EXPECT_FALSE(frame().minimised);
}

TEST_F(Frame, KeepsItsPlaceWhileItIsMaximised) {
    window().move(100, 40);
    window().resize(500, 400);
    DesktopProgram::settle();
    const float left = frame().Left;
    const float width = frame().Width;
    window().showMaximized();
    DesktopProgram::settle();
    ASSERT_GT(window().width(), 500);
    EXPECT_EQ(frame().Left, left) << "or the next start would make a normal window of that size";
    EXPECT_EQ(frame().Width, width);
    window().showNormal();
    DesktopProgram::settle();
    EXPECT_EQ(window().size(), QSize(500, 400));
    EXPECT_EQ(frame().Width, width);
}

TEST_F(Frame, TellsTheModelNoMaximisedSizeThatComesAheadOfTheState) {
    window().resize(500, 400);
    DesktopProgram::settle();
    const float width = frame().Width;
    const float height = frame().Height;
    window().resize(790, 570); // as a window manager may do it
    window().setWindowState(Qt::WindowMaximized);
    DesktopProgram::settle();
    EXPECT_EQ(frame().Width, width);
    EXPECT_EQ(frame().Height, height);
}

TEST_F(Frame, ComesBackMaximised) {
    window().showMaximized();
    DesktopProgram::settle();
    EXPECT_EQ(program.platform.settings["MainMaximised"], "1");
    DesktopProgram next(false);
    next.platform.settings = program.platform.settings;
    next.start();
    EXPECT_TRUE(next.frame().window().isMaximized());
    next.frame().window().showNormal();
    DesktopProgram::settle();
    EXPECT_EQ(next.platform.settings["MainMaximised"], "0");
    DesktopProgram last(false);
    last.platform.settings = next.platform.settings;
    last.start();
    EXPECT_FALSE(last.frame().window().isMaximized());
}

TEST_F(Frame, StoresNothingOfItsStateUnlessItIsMaximised) {
    window().showMinimized();
    DesktopProgram::settle();
    window().showNormal();
    DesktopProgram::settle();
    EXPECT_EQ(program.platform.settings.count("MainMaximised"), 0U);
}

TEST_F(Frame, KeepsItsButtonsInTheirPlaces) {
    window().resize(1000, 600);
    DesktopProgram::settle();
    std::vector<QRect> before;
    const auto places = [&] {
        std::vector<QRect> found;
        for (const Control* button :
             {&frame().Command1, &frame().Command2, &frame().Command3, &frame().Command4, &frame().Command5}) {
            found.push_back(program.widget(*button)->geometry());
        }
        return found;
    };
    before = places();
    program.newImage(true); // Modify EDID (ON), See Ext Block
    EXPECT_EQ(frame().Command4.caption(), "See Ext Block");
    EXPECT_EQ(places(), before);
    click(frame().Command3);
    EXPECT_EQ(frame().Command3.caption(), "Auto Cell Seek (ON)");
    EXPECT_EQ(places(), before);
    click(frame().Command2);
    click(frame().Command3);
    EXPECT_EQ(places(), before);
}

TEST_F(Frame, StaysOnAScreenThatThereIs) {
    program.act([&] { frame().setPosition(-900000, -900000, 6500, 6500); });
    EXPECT_TRUE(window().screen()->geometry().intersects(window().frameGeometry()));
    EXPECT_EQ(frame().Left, -900000) << "the stored place is kept until the user moves the frame";
}

TEST_F(Frame, ScrollsWhereAChildIsLarger) {
    program.newImage();
    const QMdiArea& area = program.frame().area();
    program.window(edid()).resize(area.viewport()->size() + QSize(1, 1));
    DesktopProgram::settle();
    EXPECT_TRUE(area.horizontalScrollBar()->isVisible());
    EXPECT_TRUE(area.verticalScrollBar()->isVisible());
}

TEST_F(Frame, WrapsItsButtonsWhereItIsNarrow) {
    const QWidget& last = *program.widget(frame().Command5);
    window().resize(433, 433);
    DesktopProgram::settle();
    EXPECT_GT(last.y(), program.widget(frame().Command1)->y());
    EXPECT_LE(last.geometry().right(), last.parentWidget()->width());
    window().resize(1000, 433);
    DesktopProgram::settle();
    EXPECT_EQ(last.y(), program.widget(frame().Command1)->y());
}

TEST_F(Frame, ClosesWhenTheModelSaysSo) {
    program.newImage();
    program.workbench.EDIDModified = flagTrue;
    program.platform.queueAnswer(platform::Answer::Yes);
    window().close(); // the save is abandoned
    DesktopProgram::settle();
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Save Changes?"});
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(program.workbench.ended);
    program.platform.queueAnswer(platform::Answer::No);
    window().close();
    DesktopProgram::settle();
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Save Changes?"});
    EXPECT_TRUE(program.workbench.ended);
}

TEST(Splash, IsShownWhileTheProgramStarts) {
    DesktopProgram program(false);
    program.act([&] { program.workbench.windows.reveal(program.workbench.frmSplash()); });
    EXPECT_TRUE(program.window(program.workbench.frmSplash()).isVisible());
    program.start();
    EXPECT_EQ(program.workbench.loaded(ScreenId::Splash), nullptr);
    EXPECT_TRUE(program.frame().window().isVisible());
}

} // namespace
} // namespace wb::test
