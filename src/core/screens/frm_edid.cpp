#include "core/screens/frm_edid.h"

namespace wb {

FrmEdid::FrmEdid(Workbench& workbench) : BlockScreen(workbench, ScreenId::Edid, "Edid Decoding Screen", 14) {
    // The tag of an identity cell is the index of its lbVendor label; that of the version has one that is never read.
    static constexpr int tags[] = {0, 0, 1, 1, 2, 2, 2, 2, 3, 4, 4};
    constexpr int first = cells::manufacturer.first;
    for (int cell = first; cell <= cells::version; ++cell) {
        txtEdit(cell).setTag(tags[cell - first]);
    }
    Hints(0).lendCaption("Header (0 - 7)");
    Hints(1).lendCaption("Vendor (8-17)");
    Hints(2).lendCaption("EDID Version/Revision (18-19)");
    Hints(3).lendCaption("Basic Display Parameters(20-24)");
    Hints(4).lendCaption("Chromaticity (25-34)");
    Hints(5).lendCaption("Established Timing I: (35)");
    Hints(6).lendCaption("Established Timing II: (36)");
    Hints(7).lendCaption("Manufacturer's Timings: (37)");
    Hints(8).lendCaption("Standard Timing (38-53)");
    Hints(13).lendCaption("Extension Flag and CheckSum");

    lbVendor.setCaptions({"Manufacturer", "Product Code", "Serial Number", "Week Manufactured", "Year Manufactured ",
                          "Complete Serial Number", ""});
    VerRev.setMaxLength(3);
    lbEDID.setCaptions(
        {"Version Number", "Revision Number", "Complete Version Number", "", "", "", "Extended Flag", "CheckSum"});
    lbEDID(6).placeIn(Hints(13));
    lbEDID(7).placeIn(Hints(13));

    lbBasic.setCaptions({"Video Input Definition", "Feature Support"});
    VideoMode.setCaptions({"Analog", "Digital"});
    Signal.setCaptions({"0.700, 0.300", "0.714, 0.286", "1.000, 0.400", "0.700, 0.000"});
    Sync.setCaptions(
        {"Serration VSync.", "Sync. On Green", "Composite Sync.", "Separate Syncs.", "Blank-to-Black Setup"});
    DFP_1.setCaptions({"DFP 1.x Compatible"});
    Basic.setCaptions({"Max. Horiz. Image Size ", "Max. Vert. Image Size ", "Gamma"});
    FSupport.setCaptions({"Stand-By", "Suspend", "Active-Off/Low Power", "Std Default Color Space",
                          "Preferred Timing Mode", "Default GTF Supported"});
    DisplayType.setCaptions({"Mono/Gray Scale", "R/G/B Color", "Non R/G/B Multi Clr", "Undefined"});
    Check1.setCaptions({"VSync."});

    chkChroma.setCaptions({"Red X", "Red Y", "Green X", "Green Y", "Blue X", "Blue Y", "White X", "White Y"});
    lbChromaChange.setCaptions(
        {"To Change a value listed above, click on the item and place the new value in the text below.",
         "Warning this field is used in a math calculation. Click on an option button for additional information."});

    ET1.setCaptions({"720 X 400 @ 70Hz", "720 X 400 @ 88Hz", "640 X 480 @ 60Hz", "640 X 480 @ 67Hz", "640 X 480 @ 72Hz",
                     "640 X 480 @ 75Hz", "800 X 600 @ 56Hz", "800 X 600 @ 60Hz"});
    ET2.setCaptions({"800 X 600 @ 72Hz", "800 X 600 @ 75Hz", "832 X 624 @ 75Hz", "1024 X 768 @ 87Hz(I)",
                     "1024 X 768 @ 60Hz", "1024 X 768 @ 70Hz", "1024 X 768 @ 75Hz", "1280 X 1024 @ 75Hz"});
    ET3.setCaptions({"1152 X 870 @ 75Hz"});

    for (ControlArray* aspects : {&STAOptb, &ExtSTAOptb}) {
        aspects->setCaptions({"16:10 Aspect Ratio", "4:3 Aspect Ratio", "5:4 Aspect Ratio", "16:9 Aspect Ratio"});
    }
    for (ControlArray* adjusts : {&STAOpta, &ExtSTAOpta}) {
        adjusts->setCaptions({"Adjust Horizontal ", "Adjust Frequency"});
    }
    ExtSTOpt(6).lendCaption("Disable this option.");

    DTa.setCaptions({"Monitor Serial Number", "ASCII String", "Monitor Range Limits", "Monitor Name",
                     "Color Point Data", "Standard Timing Data", "Currently Undefined", "Defined by Manufacturer"});
    DtaOpt.setCaptions({"Min Vertical", "Max Vertical", "Min Horzontal", "Max Horzontal", "Max Pixel Clock"});
    S_GTF.setCaptions({"Start Hor Freq", "C", "M", "K", "J"});
    DtaOptWhite.setCaptions({"White X", "White Y", "White Gamma", "White X", "White Y", "White Gamma"});
    NotUsed.setCaptions({"Not Used", "Not Used"});
    Windex.setCaptions({"W Index 0", "W Index 1"});
    DTaInput.setMaxLength(13);
}

} // namespace wb
