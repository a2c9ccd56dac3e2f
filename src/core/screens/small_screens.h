#pragma once

#include "core/screen.h"
#include "core/shared_variables.h"

namespace wb {

/// A picture without logic, shown while the program starts.
class FrmSplash : public Screen {
public:
    explicit FrmSplash(Workbench& workbench);
};

/// Form-level fields of the report window: the inner size in twips; `input::resized` keeps it up to date.
struct FrmDocumentFields {
    int innerWidth = 0;
    int innerHeight = 0;
};

/// The report window.
class FrmDocument : public Screen, public FrmDocumentFields {
public:
    explicit FrmDocument(Workbench& workbench);

    SingleControl rtftext{*this, "rtftext", ControlKind::Document};

    static constexpr int margin = 100;    ///< of rtftext on all sides, in twips
    void (*resize)(Workbench&) = nullptr; ///< called after the inner size has changed

protected:
    void resetFields() override { static_cast<FrmDocumentFields&>(*this) = {}; }
};

/// Form-level fields of the calculator.
struct FrmHexCalculatorFields {
    std::int16_t CalcMode = 1; ///< 0 hexadecimal, 1 decimal, 2 binary
    std::string PendingOperator;
    Flag OperatorPressed = flagFalse;
    std::string PreviousCurrent;
};

/// The calculator.
class FrmHexCalculator : public Screen, public FrmHexCalculatorFields {
public:
    explicit FrmHexCalculator(Workbench& workbench);

    ControlArray Command1{*this, "Command1", ControlKind::Button, 0, 26};
    SingleControl Mode{*this, "Mode", ControlKind::Frame};
    ControlArray Option1{*this, "Option1", ControlKind::Option, 0, 3, &Mode};
    SingleControl Display{*this, "Display", ControlKind::Text};
    SingleControl CurrentCell{*this, "CurrentCell", ControlKind::Text};
    SingleControl ResultsCell{*this, "ResultsCell", ControlKind::Text};

protected:
    void resetFields() override { static_cast<FrmHexCalculatorFields&>(*this) = {}; }
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
