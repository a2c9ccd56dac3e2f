#pragma once

#include "core/screens/block_screen.h"

namespace wb {

/// The working screen of block 0, "Edid Decoding Screen".
class FrmEdid : public BlockScreen {
public:
    static constexpr int descriptorPanel = 11; ///< of `Hints`
    static constexpr int timingDescriptorPanel = 12;

    explicit FrmEdid(Workbench& workbench);

    // Hints(0): header.
    SingleControl Label3{*this, "Label3", ControlKind::Label, &Hints(0),
                         "Header Information is 8 Bytes Long ( 00-07)."};

    // Hints(1): vendor fields.
    ControlArray lbVendor{*this, "lbVendor", ControlKind::Label, 0, 7, &Hints(1)};
    SingleControl VendorInfo{*this, "VendorInfo", ControlKind::Text, &Hints(1)};

    // Hints(2): version and revision; lbEDID(6) and lbEDID(7) stand in Hints(13).
    ControlArray lbEDID{*this, "lbEDID", ControlKind::Label, 0, 8, &Hints(2)};

    // Hints(3): basic display parameters.
    ControlArray lbBasic{*this, "lbBasic", ControlKind::Label, 0, 2, &Hints(3)};
    SingleControl VideoInput{*this, "VideoInput", ControlKind::Frame, &Hints(3), "Video Input Defination"};
    ControlArray VideoMode{*this, "VideoMode", ControlKind::Option, 0, 2, &VideoInput};
    SingleControl Analog{*this, "Analog", ControlKind::Frame, &VideoInput};
    ControlArray Signal{*this, "Signal", ControlKind::Option, 0, 4, &Analog};
    ControlArray Sync{*this, "Sync", ControlKind::Check, 0, 5, &Analog};
    SingleControl DFP{*this, "DFP", ControlKind::Frame, &VideoInput};
    ControlArray DFP_1{*this, "DFP_1", ControlKind::Check, 1, 1, &DFP};
    ControlArray Basic{*this, "Basic", ControlKind::Option, 0, 3, &Hints(3)};
    SingleControl BasicInput{*this, "BasicInput", ControlKind::Text, &Hints(3)};
    SingleControl DPMS{*this, "DPMS", ControlKind::Frame, &Hints(3), "Power + Supported Feature"};
    ControlArray FSupport{*this, "FSupport", ControlKind::Check, 0, 6, &DPMS};
    SingleControl Frame3{*this, "Frame3", ControlKind::Frame, &DPMS, "Display Type[4:3]"};
    ControlArray DisplayType{*this, "DisplayType", ControlKind::Option, 0, 4, &Frame3};
    ControlArray Check1{*this, "Check1", ControlKind::Check, 5, 1, &Hints(3)};

    // Hints(4): chromaticity.
    ControlArray chkChroma{*this, "chkChroma", ControlKind::Option, 0, 8, &Hints(4)};
    ControlArray lbChromaChange{*this, "lbChromaChange", ControlKind::Label, 0, 2, &Hints(4)};
    SingleControl ChromaValue{*this, "ChromaValue", ControlKind::Text, &Hints(4)};

    // Hints(5) to Hints(7): established timings.
    ControlArray ET1{*this, "ET1", ControlKind::Check, 0, 8, &Hints(5)};
    ControlArray ET2{*this, "ET2", ControlKind::Check, 0, 8, &Hints(6)};
    ControlArray ET3{*this, "ET3", ControlKind::Check, 7, 1, &Hints(7)};
    SingleControl Label4{*this, "Label4", ControlKind::Label, &Hints(7), "The Balance are Reserved"};

    // Hints(8): standard timings.
    ControlArray STOpt{*this, "STOpt", ControlKind::Option, 0, 8, &Hints(8)};
    SingleControl Frame1{*this, "Frame1", ControlKind::Frame, &Hints(8)};
    ControlArray STAOptb{*this, "STAOptb", ControlKind::Option, 0, 4, &Frame1};
    SingleControl Frame4{*this, "Frame4", ControlKind::Frame, &Hints(8)};
    ControlArray STAOpta{*this, "STAOpta", ControlKind::Option, 0, 2, &Frame4};
    SingleControl STAInput{*this, "STAInput", ControlKind::Text, &Frame4};

    // Hints(11): monitor descriptor.
    ControlArray DTa{*this, "DTa", ControlKind::Option, 0, 8, &Hints(11)};
    ControlArray DTAFrame{*this, "DTAFrame", ControlKind::Frame, 0, 2, &Hints(11)};
    ControlArray DtaOpt{*this, "DtaOpt", ControlKind::Option, 0, 5, &DTAFrame(0)};
    SingleControl DTAGTF{*this, "DTAGTF", ControlKind::Check, &Hints(11), "Secondary GTF"};
    ControlArray frmS_GTF{*this, "frmS_GTF", ControlKind::Frame, 0, 1, &Hints(11)};
    ControlArray S_GTF{*this, "S_GTF", ControlKind::Option, 0, 5, &frmS_GTF(0)};
    SingleControl Label6{*this, "Label6", ControlKind::Label, &frmS_GTF(0)};
    SingleControl Label5{*this, "Label5", ControlKind::Label, &DTAFrame(1), "White Point #1"};
    SingleControl Label8{*this, "Label8", ControlKind::Label, &DTAFrame(1), "White Point #2"};
    ControlArray DtaOptWhite{*this, "DtaOptWhite", ControlKind::Option, 0, 6, &DTAFrame(1)};
    ControlArray NotUsed{*this, "NotUsed", ControlKind::Label, 0, 2, &DTAFrame(1)};
    ControlArray Windex{*this, "Windex", ControlKind::Check, 0, 2, &Hints(11)};
    SingleControl DTaInput{*this, "DTaInput", ControlKind::Text, &Hints(11)};

    // Hints(12): standard timing descriptor.
    ControlArray ExtSTOpt{*this, "ExtSTOpt", ControlKind::Option, 0, 7, &Hints(12)};
    SingleControl ExtStaFrame{*this, "ExtStaFrame", ControlKind::Frame, &Hints(12)};
    ControlArray ExtSTAOptb{*this, "ExtSTAOptb", ControlKind::Option, 0, 4, &ExtStaFrame};
    SingleControl Frame6{*this, "Frame6", ControlKind::Frame, &Hints(12)};
    ControlArray ExtSTAOpta{*this, "ExtSTAOpta", ControlKind::Option, 0, 2, &Frame6};
    SingleControl ExtStaInput{*this, "ExtStaInput", ControlKind::Text, &Frame6};
};

} // namespace wb
