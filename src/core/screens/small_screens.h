#pragma once

#include "core/screen.h"
#include "core/shared_variables.h"

namespace wb {

/// A picture without logic, shown while the program starts.
class FrmSplash : public Screen {
public:
    explicit FrmSplash(Workbench& workbench);
};

/// The report window.
class FrmDocument : public Screen {
public:
    explicit FrmDocument(Workbench& workbench);

    SingleControl rtftext{*this, "rtftext", ControlKind::Document};

    static constexpr int margin = 100; ///< of rtftext on all sides, in twips
    /// Inner size in twips; `input::resized` keeps it up to date.
    int innerWidth = 0;
    int innerHeight = 0;
    void (*resize)(Workbench&) = nullptr; ///< called after the inner size has changed
};

/// The calculator.
class FrmHexCalculator : public Screen {
public:
    explicit FrmHexCalculator(Workbench& workbench);

    ControlArray Command1{*this, "Command1", ControlKind::Button, 0, 26};
    SingleControl Mode{*this, "Mode", ControlKind::Frame};
    ControlArray Option1{*this, "Option1", ControlKind::Option, 0, 3, &Mode};
    SingleControl Display{*this, "Display", ControlKind::Text};
    SingleControl CurrentCell{*this, "CurrentCell", ControlKind::Text};
    SingleControl ResultsCell{*this, "ResultsCell", ControlKind::Text};

    std::int16_t CalcMode = 1; ///< 0 hexadecimal, 1 decimal, 2 binary
    std::string PendingOperator;
    Flag OperatorPressed = flagFalse;
    std::string PreviousCurrent;
};

/// Where the standards can be had.
class FrmHelp : public Screen {
public:
    explicit FrmHelp(Workbench& workbench);

    SingleControl Command1{*this, "Command1", ControlKind::Button, nullptr, "OK"};
    SingleControl Label1{*this, "Label1", ControlKind::Label};
    SingleControl Label2{*this, "Label2", ControlKind::Label};
    SingleControl Label3{*this, "Label3", ControlKind::Label};
    SingleControl Label4{*this, "Label4", ControlKind::Label};
};

/// The root of the registry search.
class FrmEdidReg : public Screen {
public:
    explicit FrmEdidReg(Workbench& workbench);

    SingleControl Text1{*this, "Text1", ControlKind::Text};
    SingleControl Label2{*this, "Label2", ControlKind::Label};
    ControlArray Command1{*this, "Command1", ControlKind::Button, 0, 3};
};

/// Version and credits.
class FrmAbout : public Screen {
public:
    explicit FrmAbout(Workbench& workbench);

    SingleControl cmdOK{*this, "cmdOK", ControlKind::Button, nullptr, "OK"};
    SingleControl cmdSysInfo{*this, "cmdSysInfo", ControlKind::Button, nullptr, "&System Info..."};
    SingleControl Image1{*this, "Image1", ControlKind::Label};
    SingleControl Label1{*this, "Label1", ControlKind::Label};
    SingleControl lblWrittenby{*this, "lblWrittenby", ControlKind::Label};
    SingleControl lblVersion{*this, "lblVersion", ControlKind::Label};
    SingleControl lblAddress{*this, "lblAddress", ControlKind::Label};
    SingleControl Help{*this, "Help", ControlKind::Label};
    SingleControl Exit{*this, "Exit", ControlKind::Label};
};

} // namespace wb
