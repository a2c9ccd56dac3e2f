#include <QCheckBox>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextBrowser>
#include <QUrl>

#include "desktop/desktop_test.h"
#include "desktop/shown_tip.h"
#include "desktop/views/sizes.h"
#include "desktop/windows/find_bar.h"

namespace wb::test {
namespace {

class Find : public DesktopTest {
protected:
    Find() {
        program.openSample("brindleco-b24w.bin");
        click(frame().Command1);
        program.act([&] { report().setText("one two\r\nTwo three\r\ntwofold"); });
    }
    Control& report() { return program.workbench.frmDocument().rtftext; }
    QPlainTextEdit& page() { return program.widgetAs<QPlainTextEdit>(report()); }
    desktop::FindBar& bar() {
        return *dynamic_cast<desktop::FindBar*>(
            program.window(program.workbench.frmDocument()).findChild<QLineEdit*>()->parentWidget());
    }
    QLineEdit& box() { return *bar().findChild<QLineEdit*>(); }
    void open() { press(Qt::Key_F, Qt::ControlModifier); }
    /// The line that the selected text stands in, and the text.
    std::string found() {
        const QTextCursor cursor = page().textCursor();
        return std::to_string(cursor.blockNumber()) + ": " + cursor.selectedText().toStdString();
    }
};

TEST_F(Find, IsHiddenUntilItsKey) {
    EXPECT_TRUE(bar().isHidden());
    open();
    EXPECT_TRUE(bar().isVisible());
    EXPECT_TRUE(box().hasFocus());
}

TEST_F(Find, GoesFromPlaceToPlaceAndMarksThemAll) {
    open();
    type("two");
    EXPECT_EQ(box().text(), "two") << "what is typed stays in the box while the model hears of the selection";
    EXPECT_EQ(page().extraSelections().size(), 3);
    EXPECT_EQ(found(), "0: two");
    press(Qt::Key_Return);
    EXPECT_EQ(found(), "1: Two");
    press(Qt::Key_F3);
    EXPECT_EQ(found(), "2: two");
    press(Qt::Key_Return);
    EXPECT_EQ(found(), "0: two") << "from the last one to the first";
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(found(), "2: two");
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(found(), "1: Two");
    EXPECT_TRUE(box().hasFocus());
    EXPECT_EQ(report().selLength(), 3) << "the model knows the selection";
    EXPECT_EQ(focused(), "frmDocument.rtftext");
}

TEST_F(Find, FindsInTheTextAsItIsAlsoWhileTheBarIsHidden) {
    open();
    type("two");
    press(Qt::Key_Escape);
    program.act([&] { report().setText("none\r\none two"); });
    press(Qt::Key_F3);
    EXPECT_EQ(found(), "1: two");
    EXPECT_TRUE(bar().isHidden());
    EXPECT_TRUE(page().extraSelections().isEmpty());
}

TEST_F(Find, MatchesTheCaseWhereAsked) {
    open();
    type("Two");
    EXPECT_EQ(page().extraSelections().size(), 3);
    bar().findChild<QCheckBox*>()->click();
    EXPECT_EQ(page().extraSelections().size(), 1);
    EXPECT_EQ(found(), "1: Two");
}

TEST_F(Find, TellsWhereThereIsNone) {
    open();
    type("four");
    EXPECT_TRUE(page().extraSelections().isEmpty());
    QStringList texts;
    for (const QLabel* label : bar().findChildren<QLabel*>()) {
        texts += label->text();
    }
    EXPECT_TRUE(texts.contains("Not found"));
}

TEST_F(Find, GivesTheFocusBackWhenItCloses) {
    open();
    type("two");
    press(Qt::Key_Escape);
    EXPECT_TRUE(bar().isHidden());
    EXPECT_TRUE(page().extraSelections().isEmpty());
    EXPECT_EQ(qtFocused(), "frmDocument.rtftext");
}

TEST_F(Find, OpensFromTheCellsAndLeavesTheFocusToTheUsersNextClick) {
    focus(edid().txtEdit(3));
    open();
    EXPECT_EQ(program.workbench.windows.activeChild(), &program.workbench.frmDocument());
    EXPECT_TRUE(box().hasFocus());
    click(edid().txtEdit(5));
    EXPECT_EQ(qtFocused(), "frmEDID.txtEdit(5)");
}

TEST_F(Find, LooksAnewInAReportThatIsSetAnew) {
    open();
    type("two");
    program.act([&] { report().setText("two"); });
    EXPECT_EQ(page().extraSelections().size(), 1);
    program.act([&] { report().setText("x"); });
    EXPECT_TRUE(page().extraSelections().isEmpty());
}

class Manners : public DesktopTest {
protected:
    QMainWindow& window() { return program.frame().window(); }
    bool drop(const QMimeData& data, const QPoint& place) {
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window().windowHandle(), &enter);
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window().windowHandle(), &event);
        DesktopProgram::settle();
        return enter.isAccepted();
    }
    bool dropFiles(const QStringList& names, const QPoint& place) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& name : names) {
            urls += QUrl::fromLocalFile(name);
        }
        data.setUrls(urls);
        data.setText(names.join('\n')); // file managers give both
        return drop(data, place);
    }
    QPoint middleOf(const Control& control) {
        QWidget& widget = *program.widget(control);
        return widget.mapTo(&window(), widget.rect().center());
    }
};

const QString zarqo = WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.DAT";
const QString brindleco = WORKBENCH_SOURCE_DIR "/samples/brindleco-b24w.DAT";

TEST_F(Manners, OpensADroppedDataFileAsOpenDoes) {
    EXPECT_TRUE(dropFiles({zarqo}, window().rect().center()));
    DesktopProgram other;
    other.platform.queueFileName(zarqo.toStdString());
    other.act([&] { input::choose(other.workbench.frmMain().mnuFileOpen); });
    EXPECT_EQ(program.workbench.CurrentFileName, zarqo.toStdString());
    EXPECT_EQ(edid().caption(), other.workbench.frmEDID().caption());
    for (int cell = 0; cell < BlockScreen::cellCount; ++cell) {
        ASSERT_EQ(edid().txtEdit(cell).text(), other.workbench.frmEDID().txtEdit(cell).text()) << cell;
        ASSERT_EQ(cea().txtEdit(cell).text(), other.workbench.frmCEA_EXT().txtEdit(cell).text()) << cell;
    }
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(Manners, OpensADroppedFileWhereverInTheFrameItFalls) {
    program.newImage();
    modify();
    focus(edid().txtEdit(8));
    for (const Control* place :
         {&edid().txtEdit(34), static_cast<Control*>(&edid().VendorInfo), static_cast<Control*>(&frame().Command1)}) {
        const QString file = program.workbench.CurrentFileName == zarqo.toStdString() ? brindleco : zarqo;
        EXPECT_TRUE(dropFiles({file}, middleOf(*place))) << place->fullName();
        EXPECT_EQ(program.workbench.CurrentFileName, file.toStdString()) << place->fullName();
        focus(edid().txtEdit(8));
    }
}

TEST_F(Manners, TakesOnlyOneFile) {
    EXPECT_FALSE(dropFiles({zarqo, brindleco}, window().rect().center()));
    QMimeData text;
    text.setText("no file");
    EXPECT_FALSE(drop(text, window().rect().center()));
    QMimeData page;
    page.setUrls({QUrl("https://example.org/a.DAT")});
    EXPECT_FALSE(drop(page, window().rect().center()));
    EXPECT_EQ(program.workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(Manners, ClosesOneChildByTheKeyOfChildren) {
    program.newImage(true);
    click(frame().Command4);
    press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(cea().shown()) << "as its close button, which keeps the cells";
    EXPECT_NE(program.workbench.loaded(ScreenId::CeaExt), nullptr);
    EXPECT_TRUE(edid().shown());
    press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(takeBoxes(), std::vector<std::string>{"Save Changes?"});
    EXPECT_EQ(program.workbench.loaded(ScreenId::Edid), nullptr);
    press(Qt::Key_F4, Qt::ControlModifier); // there is none any more
    EXPECT_TRUE(window().isVisible());
}

TEST_F(Manners, ShowsTheKeysOfTheDocuments) {
    QAction* keys = window().menuBar()->actions().last()->menu()->actions().last();
    ASSERT_EQ(keys->text(), "&Keys");
    keys->trigger();
    DesktopProgram::settle();
    const auto* list = window().findChild<QTextBrowser*>();
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->isVisible());
    QFile file(WORKBENCH_SOURCE_DIR "/docs/keyboard.md");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString shown = list->toPlainText();
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QStringList cells = line.split('|', Qt::SkipEmptyParts);
        if (line.startsWith("| ") && cells.size() == 2) {
            EXPECT_TRUE(shown.contains(cells[0].trimmed())) << line.toStdString();
            EXPECT_TRUE(shown.contains(cells[1].trimmed())) << line.toStdString();
        }
    }
    QTextBrowser* first = window().findChild<QTextBrowser*>();
    keys->trigger();
    EXPECT_EQ(window().findChildren<QTextBrowser*>().size(), 1) << "one window of them is enough";
    first->window()->close();
}

TEST_F(Manners, GivesNamesRoomForThirteenCapitals) {
    program.newImage();
    for (const Control* name : {&edid().txtBrand, &edid().txtModel, &edid().DTaInput}) {
        const auto& box = program.widgetAs<QLineEdit>(*name);
        const int needed = QFontMetrics(box.font()).horizontalAdvance(QString(13, 'W'));
        EXPECT_GE(desktop::innerWidth(box) - (box.width() - box.minimumWidth()), needed) << name->fullName();
    }
}

TEST_F(Manners, ShowsTheBeginningOfALongNameAndTheWholeInItsTip) {
    program.newImage();
    auto& box = program.widgetAs<QLineEdit>(edid().txtBrand);
    program.act([&] { edid().txtBrand.setText("short"); });
    EXPECT_EQ(box.toolTip(), "Brand");
    const QString rich = "Maker <b>of</b> quite a number of wide and bright monitors";
    program.act([&] { edid().txtBrand.setText(rich.toStdString()); });
    EXPECT_EQ(shownTip(box.toolTip()), "Brand: " + rich.toStdString());
    const QString name = "R&D, maker > of quite a number of wide and bright monitors";
    program.act([&] { edid().txtBrand.setText(name.toStdString()); });
    EXPECT_EQ(box.cursorPosition(), 0);
    EXPECT_EQ(shownTip(box.toolTip()), "Brand: " + name.toStdString());
    focus(edid().txtBrand);
    press(Qt::Key_End);
    EXPECT_EQ(box.cursorPosition(), name.size());
    focus(edid().txtEdit(0));
    EXPECT_EQ(box.cursorPosition(), 0);
}

} // namespace
} // namespace wb::test
