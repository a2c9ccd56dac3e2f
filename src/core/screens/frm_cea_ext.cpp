#include "core/screens/frm_cea_ext.h"

#include <array>

namespace wb {

namespace {

/// A row "00", "01" ... in decimal, with at least two digits.
struct NumberRow {
    std::array<char, 4> digits{};
    std::size_t length = 0;
};

template <int First, int Count, int Step>
constexpr std::array<NumberRow, Count> numberRows = [] {
    std::array<NumberRow, Count> rows{};
    int number = First;
    for (NumberRow& row : rows) {
        row.length = number > 999 ? 4 : number > 99 ? 3 : 2;
        for (int place = static_cast<int>(row.length) - 1, rest = number; place >= 0; --place, rest /= 10) {
            row.digits[static_cast<std::size_t>(place)] = static_cast<char>('0' + rest % 10);
        }
        number += Step;
    }
    return rows;
}();

template <int First, int Count, int Step = 1>
constexpr std::array<std::string_view, Count> numberedRows = [] {
    std::array<std::string_view, Count> views{};
    for (std::size_t i = 0; i < views.size(); ++i) {
        const NumberRow& row = numberRows<First, Count, Step>[i];
        views[i] = {row.digits.data(), row.length};
    }
    return views;
}();

} // namespace

FrmCeaExt::FrmCeaExt(Workbench& workbench) : BlockScreen(workbench, ScreenId::CeaExt, "CEA-EXT Decoding Screen", 17) {
    Hints(0).lendCaption("Audio Channels ( )");
    Hints(1).lendCaption("Speaker ( )");
    Hints(2).lendCaption("Version Number (1)");
    Hints(3).lendCaption("Detailed Timing Offset (2)");
    Hints(4).lendCaption("Speaker ( )");
    Hints(5).lendCaption("Audio Sampling Frequency ( )");
    Hints(6).lendCaption("Audio Sampling bit rate ( )");
    Hints(7).lendCaption("Vendor Specific Data Block (  )");
    Hints(8).lendCaption("VSDB Extension ( )");
    Hints(13).lendCaption("Vendor Specific Data Block ( )");
    Hints(14).lendCaption("Native Formats (3)");
    Hints(15).lendCaption("Data Block Tag Codes (4)");
    Hints(16).lendCaption("Video Data Block (5)");

    AudChCBox.setRows(numberedRows<1, 8>);
    AudFormCode.setCaptions({"Reserved", "Linear PCM (IEC60958)", "AC-3", "MPEG1 (Layers 1 and 2)",
                             "MP3 (MPEG1 Layer 3)", "MPEG2 (multichannel)", "AAC", "DTS", "ATRAC", "One Bit Audio",
                             "Dolby Digital +", "DTS-HD", "MAT (MLP)", "DST", "WMA Pro"});
    lbEDID(4).placeIn(Hints(13));
    lbEDID(5).placeIn(Hints(3));
    lbEDID(5).lendCaption("Detailed Timing Start at - ");
    speaker.setCaptions({"FL / FR", "LFE", "FC", "RL / RR", "RC", "FLC / FRC", "RLC / RRC"});
    SampFreq.setCaptions({"32 KHz", "44.1 KHz", "48 KHz", "88.2 KHz", "96 KHz", "176.4 KHz", "192 KHz"});
    bitrateCBox.setRows(numberedRows<0, 256, 8>);
    bitrate.setCaptions({"16 bit", "20 bit", "24 bit"});
    VSDBExt.setCaptions({"Supports_AI", "DC_48bit", "DC_36bit", "DC_30bit", "DC_Y444", "DVI_Dual"});
    NativeChk.setCaptions(
        {"DTV Supports Underscan", "DTV Supports Basic Audio", "DTV Supports YCbCr 4:4:4", "DTV Supports YCbCr 4:2:2"});
    NativeCBox.setRows(numberedRows<0, 16>);
    optButTag.setCaptions(
        {"Reserved", "Audio Data Block", "Video Data Block", "Vendor Specific Block", "Speaker Data Block"});
    TagCBox.setRows(numberedRows<0, 32>);
    AudioFormat.setCaptions({"Uncompressed", "Compressed"});
}

} // namespace wb
