#include "block0/dispatch.h"
#include "block0/panel_basic.h"
#include "block0/panel_chromaticity.h"
#include "block0/panel_descriptor.h"
#include "block0/panel_established.h"
#include "block0/panel_standard.h"
#include "block0/panel_vendor.h"
#include "shell/wiring.h"
#include "shell/wiring_block_screen.h"

namespace wb::shell {

namespace {

void connectIdentity(FrmEdid& screen) {
    screen.VendorInfo.on.gotFocus = &block0::VendorInfo_GotFocus;
    screen.VendorInfo.on.keyPress = &block0::VendorInfo_KeyPress;
    screen.VendorInfo.on.keyUp = &block0::VendorInfo_KeyUp;
    screen.VerRev.on.gotFocus = &block0::VerRev_GotFocus;
    screen.VerRev.on.keyUp = &block0::VerRev_KeyUp;
}

void connectDisplay(FrmEdid& screen) {
    screen.Basic.on.click = &block0::Basic_Click;
    screen.BasicInput.on.gotFocus = &block0::BasicInput_GotFocus;
    screen.BasicInput.on.keyUp = &block0::BasicInput_KeyUp;
    screen.VideoMode.on.click = &block0::VideoMode_Click;
    screen.Signal.on.click = &block0::Signal_Click;
    screen.Sync.on.click = &block0::Sync_Click;
    screen.DFP_1.on.click = &block0::DFP_1_Click;
    screen.DisplayType.on.click = &block0::DisplayType_Click;
    screen.FSupport.on.click = &block0::FSupport_Click;
    screen.chkChroma.on.click = &block0::chkChroma_Click;
    screen.ChromaValue.on.gotFocus = &block0::ChromaValue_GotFocus;
    screen.ChromaValue.on.keyUp = &block0::ChromaValue_KeyUp;
}

void connectTimings(FrmEdid& screen) {
    screen.ET1.on.click = &block0::ET1_Click;
    screen.ET2.on.click = &block0::ET2_Click;
    screen.ET3.on.click = &block0::ET3_Click;
    screen.STOpt.on.click = &block0::STOpt_Click;
    screen.STAOptb.on.click = &block0::STAOptb_Click;
    screen.STAOpta.on.click = &block0::STAOpta_Click;
    screen.STAInput.on.gotFocus = &block0::STAInput_GotFocus;
    screen.STAInput.on.keyUp = &block0::STAInput_KeyUp;
    screen.ExtSTOpt.on.click = &block0::ExtSTOpt_Click;
    screen.ExtSTAOptb.on.click = &block0::ExtSTAOptb_Click;
    screen.ExtSTAOpta.on.click = &block0::ExtSTAOpta_Click;
    screen.ExtStaInput.on.gotFocus = &block0::ExtStaInput_GotFocus;
    screen.ExtStaInput.on.keyUp = &block0::ExtStaInput_KeyUp;
}

void connectDescriptor(FrmEdid& screen) {
    screen.DTa.on.click = &block0::DTa_Click;
    screen.DTAGTF.on.click = &block0::DTAGTF_Click;
    screen.DtaOpt.on.click = &block0::DtaOpt_Click;
    screen.DtaOptWhite.on.click = &block0::DtaOptWhite_Click;
    screen.S_GTF.on.click = &block0::S_GTF_Click;
    screen.Windex.on.click = &block0::Windex_Click;
    screen.DTaInput.on.gotFocus = &block0::DTaInput_GotFocus;
    screen.DTaInput.on.keyUp = &block0::DTaInput_KeyUp;
}

} // namespace

void connectEdidScreen(Screen& screen) {
    auto& edid = static_cast<FrmEdid&>(screen);
    connectBlockScreen<block0::edidScreenRules>(edid);
    edid.txtEdit.on.gotFocus = &block0::txtEdit_GotFocus;
    edid.txtEdit.on.keyUp = &block0::txtEdit_KeyUp;
    edid.Hints.on.dblClick = &block0::Hints_DblClick;
    connectIdentity(edid);
    connectDisplay(edid);
    connectTimings(edid);
    connectDescriptor(edid);
}

} // namespace wb::shell
