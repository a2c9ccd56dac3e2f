#include "desktop/layouts/screens.h"

namespace wb::desktop {

namespace {

constexpr int noIndex = Control::noIndex;

constexpr Place screen[] = {
    group("#identity").at(0, 0, 1, 2),
    group("#grid").at(1, 0),
    members("Hints", 0, 13).at(1, 1).inOnePlace().onKey("Ctrl+Shift+Del"),
    one("DTHelp").at(2, 0, 1, 2).keepingRoom().called("Ctrl+Shift+Delete does what the double click does"),
};

constexpr Place header[] = {one("Label3").as(Look::Prose).wide(34)};

constexpr Place vendor[] = {
    members("lbVendor", 0, 4).at(0, 0).wide(40),
    one("VendorInfo").at(5, 0).wide(22).called("Value of the vendor field"),
    members("lbVendor", 5, 6).at(6, 0),
};

constexpr Place version[] = {
    members("lbEDID", 0, 1).at(0, 0),
    one("VerRev").at(2, 0).wide(6).called("Value of the version field"),
    members("lbEDID", 2, 5).at(3, 0),
};

constexpr Place basic[] = {
    member("lbBasic", 0).at(0, 0),   one("VideoInput").at(1, 0),
    members("Basic", 0, 2).at(2, 0), one("BasicInput").at(5, 0).wide(10).called("Value of the selected field"),
    member("lbBasic", 1).at(6, 0),   one("DPMS").at(7, 0),
    member("Check1", 5).at(8, 0),
};
constexpr Place videoInput[] = {
    members("VideoMode", 0, 1).at(0, 0).rowsOf(2),
    one("Analog").at(1, 0, 1, 2).called("Analog levels and syncs"),
    one("DFP").at(1, 0, 1, 2).called("Digital interface"),
};
constexpr Place analog[] = {
    members("Signal", 0, 3).at(0, 0),
    members("Sync", 0, 4).at(0, 1),
};
constexpr Place digital[] = {member("DFP_1", 1)};
constexpr Place power[] = {
    group("#support").at(0, 0),
    one("Frame3").at(0, 1),
};
constexpr Place support[] = {members("FSupport", 0, 5)};
constexpr Place displayType[] = {members("DisplayType", 0, 3)};

constexpr Place chromaticity[] = {
    members("chkChroma", 0, 7).at(0, 0).rowsOf(2).wide(24),
    member("lbChromaChange", 0).at(4, 0, 1, 2).as(Look::Prose).wide(40),
    member("lbChromaChange", 1).at(4, 0, 1, 2).as(Look::Prose).wide(40),
    one("ChromaValue").at(5, 0).wide(10).called("Value of the selected coordinate"),
};

constexpr Place established1[] = {members("ET1", 0, 7)};
constexpr Place established2[] = {members("ET2", 0, 7)};
constexpr Place reserved[] = {
    member("ET3", 7).at(0, 0),
    one("Label4").at(1, 0),
};

constexpr Place standard[] = {
    group("#pairs").at(0, 0),
    group("#pairValues").at(0, 1),
};
constexpr Place pairs[] = {members("STOpt", 0, 7).wide(28).called("Standard timing")};
constexpr Place pairValues[] = {
    one("Frame1").at(0, 0).called("Aspect ratio"),
    one("Frame4").at(1, 0).called("Value to adjust"),
};
constexpr Place aspects[] = {members("STAOptb", 0, 3)};
constexpr Place adjust[] = {
    members("STAOpta", 0, 1).at(0, 0),
    one("STAInput").at(2, 0).wide(10).called("New value of the selected timing"),
};

constexpr Place descriptor[] = {
    group("#tags").at(0, 0),
    group("#limits").at(0, 1),
    members("Windex", 0, 1).at(1, 0).rowsOf(2),
    member("DTAFrame", 1).at(2, 0, 1, 2).called("White points"),
};
constexpr Place tags[] = {
    members("DTa", 0, 7).at(0, 0),
    one("DTaInput").at(8, 0).wideInCapitals(13).called("Value of the descriptor"),
    one("DTAGTF").at(9, 0),
};
constexpr Place limits[] = {
    member("DTAFrame", 0).at(0, 0).called("Range limits"),
    member("frmS_GTF", 0).at(1, 0).called("Secondary GTF"),
};
constexpr Place range[] = {members("DtaOpt", 0, 4).wide(31)};
constexpr Place secondaryGtf[] = {
    members("S_GTF", 0, 4).at(0, 0).wide(31),
    one("Label6").at(5, 0),
};
constexpr Place whitePoints[] = {
    one("Label5").at(0, 0),
    one("Label8").at(0, 1),
    members("DtaOptWhite", 0, 2).at(1, 0).wide(24),
    members("DtaOptWhite", 3, 5).at(1, 1).wide(24),
    members("NotUsed", 0, 1).at(4, 0).rowsOf(2),
};

constexpr Place extStandard[] = {
    group("#extPairs").at(0, 0),
    group("#extPairValues").at(0, 1),
};
constexpr Place extPairs[] = {members("ExtSTOpt", 0, 6).wide(28).called("Standard timing")};
constexpr Place extPairValues[] = {
    one("ExtStaFrame").at(0, 0).called("Aspect ratio"),
    one("Frame6").at(1, 0).called("Value to adjust"),
};
constexpr Place extAspects[] = {members("ExtSTAOptb", 0, 3)};
constexpr Place extAdjust[] = {
    members("ExtSTAOpta", 0, 1).at(0, 0),
    one("ExtStaInput").at(2, 0).wide(10).called("New value of the selected timing"),
};

constexpr Place checkSum[] = {members("lbEDID", 6, 7)};

constexpr Area areas[] = {
    {"", noIndex, screen},
    {"Hints", 0, header},
    {"Hints", 1, vendor},
    {"Hints", 2, version},
    {"Hints", 3, basic},
    {"VideoInput", noIndex, videoInput},
    {"Analog", noIndex, analog},
    {"DFP", noIndex, digital},
    {"DPMS", noIndex, power},
    {"#support", noIndex, support},
    {"Frame3", noIndex, displayType},
    {"Hints", 4, chromaticity},
    {"Hints", 5, established1},
    {"Hints", 6, established2},
    {"Hints", 7, reserved},
    {"Hints", 8, standard},
    {"#pairs", noIndex, pairs},
    {"#pairValues", noIndex, pairValues},
    {"Frame1", noIndex, aspects},
    {"Frame4", noIndex, adjust},
    {"Hints", 11, descriptor},
    {"#tags", noIndex, tags},
    {"#limits", noIndex, limits},
    {"DTAFrame", 0, range},
    {"frmS_GTF", 0, secondaryGtf},
    {"DTAFrame", 1, whitePoints},
    {"Hints", 12, extStandard},
    {"#extPairs", noIndex, extPairs},
    {"#extPairValues", noIndex, extPairValues},
    {"ExtStaFrame", noIndex, extAspects},
    {"Frame6", noIndex, extAdjust},
    {"Hints", 13, checkSum},
};

} // namespace

const ScreenLayout& edidLayout() {
    static const ScreenLayout layout = {areas, blockAreas()};
    return layout;
}

} // namespace wb::desktop
