#include "cea/audio_panel.h"
#include "cea/cell_edit.h"
#include "cea/dispatch.h"
#include "cea/dtv_support.h"
#include "cea/header.h"
#include "cea/screen.h"
#include "cea/short_video.h"
#include "cea/speaker.h"
#include "cea/tag_panel.h"
#include "cea/vendor.h"
#include "shell/wiring.h"
#include "shell/wiring_block_screen.h"

namespace wb::shell {

namespace {

void connectDataBlockPanels(FrmCeaExt& screen) {
    screen.NativeChk.on.click = &cea::NativeChk_Click;
    screen.NativeCBox.on.click = &cea::NativeCBox_Click;
    screen.optButTag.on.click = &cea::optButTag_Click;
    screen.TagCBox.on.click = &cea::TagCBox_Click;
    screen.VideoBlkCBox.on.click = &cea::VideoBlkCBox_Click;
    screen.NativeChkBox.on.click = &cea::NativeChkBox_Click;
    screen.AudioFormat.on.click = &cea::AudioFormat_Click;
    screen.AudFormCode.on.click = &cea::AudFormCode_Click;
    screen.AudChCBox.on.click = &cea::AudChCBox_Click;
    screen.SampFreq.on.click = &cea::SampFreq_Click;
    screen.bitrate.on.click = &cea::bitrate_Click;
    screen.bitrateCBox.on.click = &cea::bitrateCBox_Click;
    screen.speaker.on.click = &cea::speaker_Click;
    screen.VSDBExt.on.click = &cea::VSDBExt_Click;
}

void connectInputBoxes(FrmCeaExt& screen) {
    screen.VerRev.on.gotFocus = &cea::VerRev_GotFocus;
    screen.VerRev.on.keyUp = &cea::VerRev_KeyUp;
    screen.DetailOffset.on.gotFocus = &cea::DetailOffset_GotFocus;
    screen.DetailOffset.on.keyUp = &cea::DetailOffset_KeyUp;
    screen.txtBoxVendorID.on.gotFocus = &cea::txtBoxVendorID_GotFocus;
    screen.txtBoxVendorID.on.keyUp = &cea::txtBoxVendorID_KeyUp;
    screen.txtBoxVendorData.on.gotFocus = &cea::txtBoxVendorData_GotFocus;
    screen.txtBoxVendorData.on.keyUp = &cea::txtBoxVendorData_KeyUp;
}

} // namespace

void connectCeaExtScreen(Screen& created) {
    auto& screen = static_cast<FrmCeaExt&>(created);
    cea::fillVideoFormats(screen);
    connectBlockScreen<cea::ceaScreenRules>(screen);
    screen.txtEdit.on.gotFocus = &cea::txtEdit_GotFocus;
    screen.txtEdit.on.keyUp = &cea::txtEdit_KeyUp;
    screen.Cmd_Return.on.click = &cea::Cmd_Return_Click;
    connectInputBoxes(screen);
    connectDataBlockPanels(screen);
}

} // namespace wb::shell
