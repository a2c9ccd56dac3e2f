#include "shell/frame.h"

#include <gtest/gtest.h>

#include "support/program.h"

namespace wb::shell {
namespace {

using Lines = std::vector<std::string>;
using platform::Answer;

class Frame : public testing::Test {
protected:
    void newImage(Answer extension) {
        program.platform.queueAnswer(extension);
        input::choose(frame.mnuFileNew);
        program.takeLines();
        program.takeBoxes();
    }
    std::string focused() {
        return workbench.focus.current() == nullptr ? "none" : workbench.focus.current()->fullName();
    }
    Lines windowNames() {
        Lines names;
        for (const Screen* screen : workbench.windows.children()) {
            names.emplace_back(screen->name());
        }
        return names;
    }

    test::Program program;
    Workbench& workbench = program.workbench;
    FrmMain& frame = workbench.frmMain();
};

struct Entry {
    const char* name;
    const char* caption;
};

TEST_F(Frame, HasTheCaptionsOfItsMenu) {
    for (const Entry& entry : {Entry{"mnuFile", "&File"},
                               Entry{"mnuFileNew", "&New"},
                               Entry{"mnuFileOpen", "&Open..."},
                               Entry{"mnuFileClose", "&Close"},
                               Entry{"mnuFileSave", "&Save"},
                               Entry{"mnuFileSaveAs", "Save &As..."},
                               Entry{"mnuFilePageSetup", "Page Set&up..."},
                               Entry{"mnuFilePrintPreview", "Print Pre&view"},
                               Entry{"mnuFilePrint", "&Print..."},
                               Entry{"ExportHex", "&Export Hexadecimal EDID File"},
                               Entry{"HexCalculator", "&Hex Calculator"},
                               Entry{"GetEDIDData", "Retreive EDID Data"},
                               Entry{"Windows2000", "Windows 2000 Base Location"},
                               Entry{"mnuFileExit", "E&xit"},
                               Entry{"mnuWindow", "&Window"},
                               Entry{"mnuWindowCascade", "&Cascade"},
                               Entry{"mnuWindowTileHorizontal", "Tile &Horizontal"},
                               Entry{"mnuWindowTileVertical", "Tile &Vertical"},
                               Entry{"mnuWindowArrangeIcons", "&Arrange Icons"},
                               Entry{"mnuHelp", "&Help"},
                               Entry{"Info", "&Information"},
                               Entry{"mnuHelpAbout", "&About "},
                               Entry{"Command1", "Translate EDID"},
                               Entry{"Command2", "Modify EDID (OFF)"},
                               Entry{"Command3", "Auto Cell Seek (Off)"},
                               Entry{"Command5", "Scan+Read EDID"},
                               Entry{"sbStatusBar", "Status"}}) {
        const Control* control = frame.find(entry.name);
        ASSERT_NE(control, nullptr) << entry.name;
        EXPECT_EQ(control->caption(), entry.caption);
        EXPECT_TRUE(control->visible()) << entry.name;
    }
    for (const char* separator : {"mnuFileBar0", "mnuFileBar1", "mnuFileBar2", "mnuFileBar3"}) {
        EXPECT_NE(frame.find(separator), nullptr) << separator;
    }
}

TEST_F(Frame, HasTheKeysOfItsToolBar) {
    Lines keys;
    for (int i = frame.tbToolBar.first(); i <= frame.tbToolBar.last(); ++i) {
        keys.push_back(frame.tbToolBar(i).caption());
    }
    EXPECT_EQ(keys, (Lines{"New", "Open", "Save", "Print Preview", "Print", "Calculator", "GetEDID"}));
    EXPECT_EQ(FrmMain::toolBarKeys[5].toolTip, "Displays Calculator");
    EXPECT_EQ(FrmMain::toolBarKeys[6].toolTip, "Retrieve EDID Data");
}

TEST_F(Frame, OpenAndSaveOfTheToolBarAskForTheirNames) {
    input::toolBar(workbench, "Open");
    EXPECT_EQ(program.takeLines(), Lines{"[dialog] Open filter=\"EDID/DDC Data Files (*.DAT)|*.DAT\" -> cancel"});
    input::toolBar(workbench, "Save");
    EXPECT_EQ(program.takeLines(), Lines{"[dialog] Save filter=\"All Files (*.*)|*.*\" -> cancel"});
}

TEST_F(Frame, PrintPreviewIsTheReport) {
    newImage(Answer::No);
    input::choose(frame.mnuFilePrintPreview);
    EXPECT_EQ(windowNames(), (Lines{"frmDocument", "frmEDID"}));
    EXPECT_TRUE(workbench.frmDocument().rtftext.locked());
    EXPECT_TRUE(program.lines.empty()) << "nothing is printed";
}

TEST_F(Frame, WithoutAnImageItsCommandsDoNothing) {
    for (Control* entry :
         {static_cast<Control*>(&frame.mnuFileSave), static_cast<Control*>(&frame.mnuFileSaveAs),
          static_cast<Control*>(&frame.mnuFilePrintPreview), static_cast<Control*>(&frame.mnuFilePrint),
          static_cast<Control*>(&frame.ExportHex), static_cast<Control*>(&frame.mnuFileClose)}) {
        EXPECT_TRUE(input::choose(*entry)) << entry->name();
    }
    EXPECT_TRUE(input::click(frame.Command1));
    EXPECT_TRUE(program.lines.empty());
    EXPECT_TRUE(windowNames().empty());
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
    EXPECT_EQ(workbench.loaded(ScreenId::Document), nullptr);
}

TEST_F(Frame, ArrangesTheChildrenByMode) {
    class RecordingArranger : public platform::WindowArranger {
    public:
        void arrange(platform::Arrangement mode) override { modes.push_back(static_cast<int>(mode)); }
        std::vector<int> modes;
    };
    RecordingArranger arranger;
    const platform::Services& inner = program.platform.services();
    const platform::Services services{inner.messageBoxes, inner.dialogs,         inner.printer,    inner.settings,
                                      inner.registry,     inner.operatingSystem, inner.edidReader, inner.shell,
                                      inner.clock,        inner.eventLoop,       arranger,         ""};
    Workbench other(services, wiring());
    Main(other);
    FrmMain& menu = other.frmMain();
    for (Control* entry :
         {static_cast<Control*>(&menu.mnuWindowCascade), static_cast<Control*>(&menu.mnuWindowTileHorizontal),
          static_cast<Control*>(&menu.mnuWindowTileVertical), static_cast<Control*>(&menu.mnuWindowArrangeIcons)}) {
        input::choose(*entry);
    }
    EXPECT_EQ(arranger.modes, (std::vector<int>{0, 1, 2, 3}));
    arranger.modes.clear();
    input::choose(menu.HexCalculator);
    EXPECT_TRUE(arranger.modes.empty()) << "without an image the calculator comes alone";
    input::close(other.frmHexCalculator());
    input::choose(menu.mnuFileNew);
    input::choose(menu.HexCalculator);
    EXPECT_EQ(arranger.modes, std::vector<int>{2});
    EXPECT_EQ(other.focus.current(), &other.frmHexCalculator().Command1(0));
}

TEST_F(Frame, CallsUpTheExtensionScreenOnceAndGoesBack) {
    newImage(Answer::Yes);
    workbench.frmCEA_EXT().Cmd_Return.setEnabled(false);
    EXPECT_TRUE(input::click(frame.Command4));
    EXPECT_EQ(windowNames(), (Lines{"frmCEA_EXT", "frmEDID"}));
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(1)");
    EXPECT_TRUE(workbench.frmCEA_EXT().Cmd_Return.enabled());
    EXPECT_EQ(workbench.CEAScreenOpen, flagTrue);

    input::activate(workbench.frmEDID());
    input::click(frame.Command4);
    EXPECT_EQ(windowNames(), (Lines{"frmEDID", "frmCEA_EXT"})) << "it is open already";
    EXPECT_EQ(focused(), "frmMain.Command4");

    workbench.frmCEA_EXT().txtEdit(20).setText("77");
    input::click(workbench.frmCEA_EXT().Cmd_Return);
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_EQ(workbench.CEAScreenOpen, flagFalse);
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(20).text(), "77") << "hidden, not unloaded";
}

TEST_F(Frame, TheCloseButtonOfTheExtensionScreenGoesBackAndCloseUnloadsIt) {
    newImage(Answer::Yes);
    input::click(frame.Command4);
    workbench.frmCEA_EXT().txtEdit(20).setText("77");
    EXPECT_TRUE(input::close(workbench.frmCEA_EXT()));
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(20).text(), "77");
    EXPECT_EQ(workbench.CEAScreenOpen, flagFalse);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");

    input::click(frame.Command4);
    input::choose(frame.mnuFileClose);
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr);
    EXPECT_EQ(workbench.CEAScreenOpen, flagFalse);
    EXPECT_EQ(workbench.EDIDLoaded, flagTrue);
    EXPECT_EQ(windowNames(), Lines{"frmEDID"});

    input::click(frame.Command4);
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(20).text(), "00") << "made anew by its load step";
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(1).text(), "03");
}

TEST_F(Frame, WithoutAnImageTheExtensionScreenKeepsItsFocus) {
    newImage(Answer::Yes);
    workbench.frmCEA_EXT().setLastFocus(&workbench.frmCEA_EXT().txtEdit(40));
    input::close(workbench.frmEDID());
    EXPECT_EQ(workbench.EDIDLoaded, flagFalse);
    EXPECT_TRUE(input::click(frame.Command4)) << "nothing has disabled it";
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(40)");
}

TEST_F(Frame, ModifySwitchesOnTheScreenThatIsOpen) {
    newImage(Answer::No);
    input::moveFocus(workbench.frmEDID().txtEdit(8));
    EXPECT_TRUE(workbench.frmEDID().txtEdit(8).locked());
    input::click(frame.Command2);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_FALSE(workbench.frmEDID().txtEdit(8).locked());
    input::click(frame.Command3);
    input::click(frame.Command2);
    EXPECT_EQ(focused(), "frmMain.Command2") << "switched off, the focus stays with the button";
    EXPECT_EQ(workbench.AutoCellSeekOn, flagTrue) << "the other switch stays as it is";
    EXPECT_EQ(frame.Command3.caption(), "Auto Cell Seek (ON)");
}

} // namespace
} // namespace wb::shell
