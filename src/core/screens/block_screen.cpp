#include "core/screens/block_screen.h"

namespace wb {

namespace {

constexpr std::size_t roughlyControls = 320;

} // namespace

BlockScreen::BlockScreen(Workbench& workbench, ScreenId id, std::string_view caption, int panelCount)
    : Screen(workbench, id, caption, roughlyControls), panelCount_(panelCount) {
    setFirstInTabOrder(txtEdit(0));
    Label1.setCaptions({"Brand", "Version", "Model", "Revision"});
    Label2.setCaptions({"0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",   "9",   "0",  "10",
                        "20", "30", "40", "50", "60", "70", "80", "90", "100", "110", "120"});
    for (int i = Hints.first(); i <= Hints.last(); ++i) {
        Hints(i).setVisible(false);
    }
    Hints(9).lendCaption("Detailed Timing (54-71)");
    Hints(10).lendCaption("Detailed Timing (54-71)");
    Hints(11).lendCaption("Detailed Timing (54-71)");
    Hints(12).lendCaption("Ext .Standard Timing");
    Freq.setCaptions({"Horizontal", "Vertical"});
    DT.setCaptions({"Pixel Clock", "Active Time", "Blanking Time", "Active Time", "Blanking Time", "Sync Offset",
                    "Pulse Width", "Sync Offset", "Pulse Width", "Border", "Border", "Image Size", "Image Size"});
    DTStereo.setCaptions({"Seq Stereo, Rt Sync =1", "Seq Stereo, Lt Sync =1", "2-Way Rt Image", "2-Way Lt Image",
                          "4-Way Interleave", "Side-By-Side", "No Stereo"});
    DTSync.setCaptions({"Analog Composite", "Bipolar Analog Comp.", "Digitial Composite", "Digitial Separate"});
}

} // namespace wb
