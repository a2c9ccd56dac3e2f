#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/screen.h"
#include "core/shared_variables.h"

namespace wb {

/// Form-level fields of the frame.
struct FrmMainFields {
    /// Position and size of the frame in twips; `input::placed` keeps them up to date.
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    bool minimised = false;
    Flag FirstActivation = flagFalse;
    /// The shared file dialog dlgCommonDialog keeps these between calls.
    std::string dialogFilter;
    std::string dialogFileName;
};

/// The multi-document frame: its menu, tool bar, command buttons and status bar.
class FrmMain : public Screen, public FrmMainFields {
public:
    explicit FrmMain(Workbench& workbench);

    SingleControl mnuFile{*this, "mnuFile", ControlKind::Menu, nullptr, "&File"};
    SingleControl mnuFileNew{*this, "mnuFileNew", ControlKind::Menu, &mnuFile, "&New"};
    SingleControl mnuFileOpen{*this, "mnuFileOpen", ControlKind::Menu, &mnuFile, "&Open..."};
    SingleControl mnuFileClose{*this, "mnuFileClose", ControlKind::Menu, &mnuFile, "&Close"};
    SingleControl mnuFileBar0{*this, "mnuFileBar0", ControlKind::Menu, &mnuFile, "-"};
    SingleControl mnuFileSave{*this, "mnuFileSave", ControlKind::Menu, &mnuFile, "&Save"};
    SingleControl mnuFileSaveAs{*this, "mnuFileSaveAs", ControlKind::Menu, &mnuFile, "Save &As..."};
    SingleControl mnuFileBar1{*this, "mnuFileBar1", ControlKind::Menu, &mnuFile, "-"};
    SingleControl mnuFilePageSetup{*this, "mnuFilePageSetup", ControlKind::Menu, &mnuFile, "Page Set&up..."};
    SingleControl mnuFilePrintPreview{*this, "mnuFilePrintPreview", ControlKind::Menu, &mnuFile, "Print Pre&view"};
    SingleControl mnuFilePrint{*this, "mnuFilePrint", ControlKind::Menu, &mnuFile, "&Print..."};
    SingleControl mnuFileBar2{*this, "mnuFileBar2", ControlKind::Menu, &mnuFile, "-"};
    SingleControl ExportHex{*this, "ExportHex", ControlKind::Menu, &mnuFile, "&Export Hexadecimal EDID File"};
    SingleControl HexCalculator{*this, "HexCalculator", ControlKind::Menu, &mnuFile, "&Hex Calculator"};
    SingleControl GetEDIDData{*this, "GetEDIDData", ControlKind::Menu, &mnuFile, "Retreive EDID Data"};
    SingleControl Windows2000{*this, "Windows2000", ControlKind::Menu, &mnuFile, "Windows 2000 Base Location"};
    SingleControl mnuFileBar3{*this, "mnuFileBar3", ControlKind::Menu, &mnuFile, "-"};
    SingleControl mnuFileExit{*this, "mnuFileExit", ControlKind::Menu, &mnuFile, "E&xit"};
    SingleControl mnuWindow{*this, "mnuWindow", ControlKind::Menu, nullptr, "&Window"};
    SingleControl mnuWindowCascade{*this, "mnuWindowCascade", ControlKind::Menu, &mnuWindow, "&Cascade"};
    SingleControl mnuWindowTileHorizontal{*this, "mnuWindowTileHorizontal", ControlKind::Menu, &mnuWindow,
                                          "Tile &Horizontal"};
    SingleControl mnuWindowTileVertical{*this, "mnuWindowTileVertical", ControlKind::Menu, &mnuWindow,
                                        "Tile &Vertical"};
    SingleControl mnuWindowArrangeIcons{*this, "mnuWindowArrangeIcons", ControlKind::Menu, &mnuWindow,
                                        "&Arrange Icons"};
    SingleControl mnuHelp{*this, "mnuHelp", ControlKind::Menu, nullptr, "&Help"};
    SingleControl Info{*this, "Info", ControlKind::Menu, &mnuHelp, "&Information"};
    SingleControl mnuHelpAbout{*this, "mnuHelpAbout", ControlKind::Menu, &mnuHelp, "&About "};

    /// What the icon of a tool bar button shows.
    enum class Picture : std::uint8_t { Sheet, Folder, Disk, Magnifier, Printer, Calculator, Monitor };
    struct ToolBarKey {
        std::string_view key;
        std::string_view toolTip;
        Picture picture;
        SingleControl FrmMain::*entry; ///< the menu entry that does the same
    };
    /// The buttons of the tool bar in their order; tbToolBar(1) is the first.
    static constexpr std::array<ToolBarKey, 7> toolBarKeys = {
        {{"New", "New", Picture::Sheet, &FrmMain::mnuFileNew},
         {"Open", "Open", Picture::Folder, &FrmMain::mnuFileOpen},
         {"Save", "Save", Picture::Disk, &FrmMain::mnuFileSave},
         {"Print Preview", "Print Preview", Picture::Magnifier, &FrmMain::mnuFilePrintPreview},
         {"Print", "Print", Picture::Printer, &FrmMain::mnuFilePrint},
         {"Calculator", "Displays Calculator", Picture::Calculator, &FrmMain::HexCalculator},
         {"GetEDID", "Retrieve EDID Data", Picture::Monitor, &FrmMain::GetEDIDData}}};
    ControlArray tbToolBar{*this, "tbToolBar", ControlKind::Menu, 1, static_cast<int>(toolBarKeys.size())};

    SingleControl Command1{*this, "Command1", ControlKind::Button, nullptr, "Translate EDID"};
    SingleControl Command2{*this, "Command2", ControlKind::Button, nullptr, "Modify EDID (OFF)"};
    SingleControl Command3{*this, "Command3", ControlKind::Button, nullptr, "Auto Cell Seek (Off)"};
    SingleControl Command4{*this, "Command4", ControlKind::Button, nullptr, "No Ext Block"};
    SingleControl Command5{*this, "Command5", ControlKind::Button, nullptr, "Scan+Read EDID"};
    SingleControl sbStatusBar{*this, "sbStatusBar", ControlKind::Label, nullptr, "Status"};

    void setPosition(float left, float top, float width, float height);

protected:
    void resetFields() override { static_cast<FrmMainFields&>(*this) = {}; }
};

} // namespace wb
