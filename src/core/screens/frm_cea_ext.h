#pragma once

#include "core/screens/block_screen.h"

namespace wb {

/// The working screen of the CEA-861 extension block, "CEA-EXT Decoding Screen". Hints(11) and Hints(12) exist and are
/// never opened.
class FrmCeaExt : public BlockScreen {
public:
    explicit FrmCeaExt(Workbench& workbench);

    SingleControl Cmd_Return{*this, "Cmd_Return", ControlKind::Button, nullptr, "Return to Main"};

    // Hints(0): audio channels and format code.
    SingleControl AudChCBox{*this, "AudChCBox", ControlKind::Combo, &Hints(0)};
    SingleControl lbAudioCh{*this, "lbAudioCh", ControlKind::Label, &Hints(0), "Maximum Number of Audio Channels."};
    SingleControl FrmAudFormCode{*this, "FrmAudFormCode", ControlKind::Frame, &Hints(0)};
    ControlArray AudFormCode{*this, "AudFormCode", ControlKind::Option, 0, 15, &FrmAudFormCode};

    // Hints(1): the reserved speaker bytes.
    SingleControl lbSpeaker{*this, "lbSpeaker", ControlKind::Label, &Hints(1), "This value should be 00H."};

    // Hints(2): version; lbEDID(4) stands in Hints(13), lbEDID(5) in Hints(3).
    SingleControl VerRel{*this, "VerRel", ControlKind::Text, &Hints(2)};
    ControlArray lbEDID{*this, "lbEDID", ControlKind::Label, 0, 6, &Hints(2)};

    // Hints(3): offset of the first detailed timing.
    SingleControl DetailOffset{*this, "DetailOffset", ControlKind::Text, &Hints(3)};

    // Hints(4): speaker allocation.
    ControlArray speaker{*this, "speaker", ControlKind::Check, 0, 7, &Hints(4)};

    // Hints(5): sampling frequencies.
    ControlArray SampFreq{*this, "SampFreq", ControlKind::Check, 0, 7, &Hints(5)};

    // Hints(6): sample sizes or bit rate.
    SingleControl bitrateCBox{*this, "bitrateCBox", ControlKind::Combo, &Hints(6)};
    SingleControl lbbitrate{*this, "lbbitrate", ControlKind::Label, &Hints(6), "Maximum Sampling bit rate."};
    SingleControl Frmbitrate{*this, "Frmbitrate", ControlKind::Frame, &Hints(6)};
    ControlArray bitrate{*this, "bitrate", ControlKind::Check, 0, 3, &Frmbitrate};

    // Hints(7): vendor data.
    SingleControl txtBoxVendorData{*this, "txtBoxVendorData", ControlKind::Text, &Hints(7)};
    SingleControl lbVendorBlock{*this, "lbVendorBlock", ControlKind::Label, &Hints(7)};

    // Hints(8): VSDB extension.
    ControlArray VSDBExt{*this, "VSDBExt", ControlKind::Check, 0, 6, &Hints(8)};

    // Hints(13): vendor registration identifier.
    SingleControl txtBoxVendorID{*this, "txtBoxVendorID", ControlKind::Text, &Hints(13)};
    SingleControl lbVendorData{*this, "lbVendorData", ControlKind::Label, &Hints(13),
                               "Enter your vendor 3 byte IEEE Registration ID in Hexadecimal"};

    // Hints(14): support flags and native formats.
    ControlArray NativeChk{*this, "NativeChk", ControlKind::Check, 0, 4, &Hints(14)};
    SingleControl NativeCBox{*this, "NativeCBox", ControlKind::Combo, &Hints(14)};
    SingleControl lbNativeNum{*this, "lbNativeNum", ControlKind::Label, &Hints(14), "Total Native Formats to Follow"};

    // Hints(15): header of a data block.
    ControlArray optButTag{*this, "optButTag", ControlKind::Option, 0, 5, &Hints(15)};
    SingleControl TagCBox{*this, "TagCBox", ControlKind::Combo, &Hints(15)};
    SingleControl lbTagCode{*this, "lbTagCode", ControlKind::Label, &Hints(15), "Total Number of Data Byte to Follow"};
    SingleControl FrmAudioFormat{*this, "FrmAudioFormat", ControlKind::Frame, &Hints(15), "Audio Format"};
    ControlArray AudioFormat{*this, "AudioFormat", ControlKind::Option, 0, 2, &FrmAudioFormat};

    // Hints(16): short video descriptor. The rows of VideoBlkCBox stand with their decoder, which fills them when the
    // screen is wired.
    SingleControl VideoBlkCBox{*this, "VideoBlkCBox", ControlKind::Combo, &Hints(16)};
    SingleControl NativeChkBox{*this, "NativeChkBox", ControlKind::Check, &Hints(16), "Native"};
};

} // namespace wb
