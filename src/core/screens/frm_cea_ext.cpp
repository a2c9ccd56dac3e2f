#include "core/screens/frm_cea_ext.h"

namespace wb {

namespace {

/// Rows "00", "01" ... in decimal, each with at least two digits.
std::vector<std::string> numberedRows(int first, int count, int step = 1) {
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(first + i * step);
        rows.push_back(number.size() < 2 ? "0" + number : number);
    }
    return rows;
}

} // namespace

FrmCeaExt::FrmCeaExt(Workbench& workbench) : BlockScreen(workbench, ScreenId::CeaExt, "CEA-EXT Decoding Screen", 17) {
    Hints(0).setCaption("Audio Channels ( )");
    Hints(1).setCaption("Speaker ( )");
    Hints(2).setCaption("Version Number (1)");
    Hints(3).setCaption("Detailed Timing Offset (2)");
    Hints(4).setCaption("Speaker ( )");
    Hints(5).setCaption("Audio Sampling Frequency ( )");
    Hints(6).setCaption("Audio Sampling bit rate ( )");
    Hints(7).setCaption("Vendor Specific Data Block (  )");
    Hints(8).setCaption("VSDB Extension ( )");
    Hints(13).setCaption("Vendor Specific Data Block ( )");
    Hints(14).setCaption("Native Formats (3)");
    Hints(15).setCaption("Data Block Tag Codes (4)");
    Hints(16).setCaption("Video Data Block (5)");

    AudChCBox.setRows(numberedRows(1, 8));
    AudFormCode.setCaptions({"Reserved", "Linear PCM (IEC60958)", "AC-3", "MPEG1 (Layers 1 and 2)",
                             "MP3 (MPEG1 Layer 3)", "MPEG2 (multichannel)", "AAC", "DTS", "ATRAC", "One Bit Audio",
                             "Dolby Digital +", "DTS-HD", "MAT (MLP)", "DST", "WMA Pro"});
    lbEDID(4).placeIn(Hints(13));
    lbEDID(5).placeIn(Hints(3));
    lbEDID(5).setCaption("Detailed Timing Start at - ");
    speaker.setCaptions({"FL / FR", "LFE", "FC", "RL / RR", "RC", "FLC / FRC", "RLC / RRC"});
    SampFreq.setCaptions({"32 KHz", "44.1 KHz", "48 KHz", "88.2 KHz", "96 KHz", "176.4 KHz", "192 KHz"});
    bitrateCBox.setRows(numberedRows(0, 256, 8));
    bitrate.setCaptions({"16 bit", "20 bit", "24 bit"});
    VSDBExt.setCaptions({"Supports_AI", "DC_48bit", "DC_36bit", "DC_30bit", "DC_Y444", "DVI_Dual"});
    NativeChk.setCaptions(
        {"DTV Supports Underscan", "DTV Supports Basic Audio", "DTV Supports YCbCr 4:4:4", "DTV Supports YCbCr 4:2:2"});
    NativeCBox.setRows(numberedRows(0, 16));
    optButTag.setCaptions(
        {"Reserved", "Audio Data Block", "Video Data Block", "Vendor Specific Block", "Speaker Data Block"});
    TagCBox.setRows(numberedRows(0, 32));
    AudioFormat.setCaptions({"Uncompressed", "Compressed"});
}

} // namespace wb
