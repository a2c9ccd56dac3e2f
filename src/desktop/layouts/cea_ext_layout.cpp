#include "desktop/layouts/screens.h"

namespace wb::desktop {

namespace {

constexpr int noIndex = Control::noIndex;

constexpr Place screen[] = {
    group("#identity").at(0, 0, 1, 2),
    group("#grid").at(1, 0),
    members("Hints", 0, 16).at(1, 1).inOnePlace().onKey("Ctrl+Shift+Del"),
    one("DTHelp").at(2, 0, 1, 2).keepingRoom().called("Ctrl+Shift+Delete does what the double click does"),
    one("Cmd_Return").at(3, 0),
};

constexpr Place audioChannels[] = {
    one("lbAudioCh").at(0, 0),
    one("AudChCBox").at(0, 1).wide(4).called("Maximum number of audio channels"),
    one("FrmAudFormCode").at(1, 0, 1, 3).called("Audio format"),
};
constexpr Place formatCodes[] = {
    members("AudFormCode", 0, 7).at(0, 0),
    members("AudFormCode", 8, 14).at(0, 1),
};

constexpr Place reservedSpeaker[] = {one("lbSpeaker")};

constexpr Place version[] = {
    member("lbEDID", 0).at(0, 0),     one("VerRev").at(1, 0).wide(6).called("Version number"),
    member("lbEDID", 1).at(2, 0),     one("VerRel").at(3, 0).wide(6).called("Revision number"),
    members("lbEDID", 2, 3).at(4, 0),
};

constexpr Place offset[] = {
    member("lbEDID", 5).at(0, 0),
    one("DetailOffset").at(1, 0).wide(6).called("Offset of the first detailed timing"),
};

constexpr Place speakers[] = {members("speaker", 0, 6)};
constexpr Place frequencies[] = {members("SampFreq", 0, 6)};

constexpr Place bitRate[] = {
    one("lbbitrate").at(0, 0),
    one("bitrateCBox").at(0, 1).wide(6).called("Maximum sampling bit rate"),
    one("Frmbitrate").at(1, 0, 1, 2).called("Sample sizes"),
};
constexpr Place sampleSizes[] = {members("bitrate", 0, 2)};

constexpr Place vendorData[] = {
    one("lbVendorBlock").at(0, 0),
    one("txtBoxVendorData").at(1, 0).wide(10).called("Vendor specific data"),
};

constexpr Place extension[] = {members("VSDBExt", 0, 5)};

constexpr Place vendorId[] = {
    one("lbVendorData").at(0, 0).as(Look::Prose).wide(36),
    one("txtBoxVendorID").at(1, 0).wide(10).called("IEEE registration identifier"),
    member("lbEDID", 4).at(2, 0),
};

constexpr Place nativeFormats[] = {
    members("NativeChk", 0, 3).at(0, 0, 1, 2),
    one("lbNativeNum").at(4, 0),
    one("NativeCBox").at(4, 1).wide(4).called("Number of native formats"),
};

constexpr Place tag[] = {
    members("optButTag", 0, 4).at(0, 0, 1, 2),
    one("lbTagCode").at(5, 0),
    one("TagCBox").at(5, 1).wide(4).called("Number of data bytes"),
    one("FrmAudioFormat").at(6, 0, 1, 2),
};
constexpr Place audioFormats[] = {members("AudioFormat", 0, 1)};

constexpr Place shortVideo[] = {
    one("VideoBlkCBox").at(0, 0).wide(40).called("Video format"),
    one("NativeChkBox").at(1, 0),
};

constexpr Area areas[] = {
    {"", noIndex, screen},
    {"Hints", 0, audioChannels},
    {"FrmAudFormCode", noIndex, formatCodes},
    {"Hints", 1, reservedSpeaker},
    {"Hints", 2, version},
    {"Hints", 3, offset},
    {"Hints", 4, speakers},
    {"Hints", 5, frequencies},
    {"Hints", 6, bitRate},
    {"Frmbitrate", noIndex, sampleSizes},
    {"Hints", 7, vendorData},
    {"Hints", 8, extension},
    {"Hints", 13, vendorId},
    {"Hints", 14, nativeFormats},
    {"Hints", 15, tag},
    {"FrmAudioFormat", noIndex, audioFormats},
    {"Hints", 16, shortVideo},
};

} // namespace

const ScreenLayout& ceaExtLayout() {
    static const ScreenLayout layout = {areas, blockAreas()};
    return layout;
}

} // namespace wb::desktop
