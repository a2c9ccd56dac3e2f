#include "core/screens/block_screen.h"

namespace wb {

BlockScreen::BlockScreen(Workbench& workbench, ScreenId id, std::string_view caption, int panelCount)
    : Screen(workbench, id, caption), panelCount_(panelCount) {
    setFirstInTabOrder(txtEdit(0));
    Label1.setCaptions({"Brand", "Version", "Model", "Revision"});
    for (int i = 0; i < 10; ++i) {
        Label2(i).setCaption(std::to_string(i));
    }
    for (int row = 0; row <= 12; ++row) {
        Label2(10 + row).setCaption(std::to_string(row * 10));
    }
    for (int i = Hints.first(); i <= Hints.last(); ++i) {
        Hints(i).setVisible(false);
    }
    Hints(9).setCaption("Detailed Timing (54-71)");
    Hints(10).setCaption("Detailed Timing (54-71)");
    Hints(11).setCaption("Detailed Timing (54-71)");
    Hints(12).setCaption("Ext .Standard Timing");
    Freq.setCaptions({"Horizontal", "Vertical"});
    DT.setCaptions({"Pixel Clock", "Active Time", "Blanking Time", "Active Time", "Blanking Time", "Sync Offset",
                    "Pulse Width", "Sync Offset", "Pulse Width", "Border", "Border", "Image Size", "Image Size"});
    DTStereo.setCaptions({"Seq Stereo, Rt Sync =1", "Seq Stereo, Lt Sync =1", "2-Way Rt Image", "2-Way Lt Image",
                          "4-Way Interleave", "Side-By-Side", "No Stereo"});
    DTSync.setCaptions({"Analog Composite", "Bipolar Analog Comp.", "Digitial Composite", "Digitial Separate"});
}

} // namespace wb
