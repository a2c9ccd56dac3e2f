#include "core/base/image_layout.h"
#include "desktop/layouts/screens.h"

namespace wb::desktop {

namespace {

constexpr Place identity[] = {
    member("Label1", 0).at(0, 0), one("txtBrand").at(0, 1).wideInCapitals(13).called("Brand"),
    member("Label1", 2).at(0, 2), one("txtModel").at(0, 3).wideInCapitals(13).called("Model"),
    member("Label1", 1).at(0, 4), one("txtVersion").at(0, 5).wide(4).called("Version"),
    member("Label1", 3).at(0, 6), one("txtRevision").at(0, 7).wide(4).called("Revision"),
};

constexpr Place grid[] = {
    members("Label2", 0, 9).at(0, 1).rowsOf(10).as(Look::Heading),
    members("Label2", 10, 22).at(1, 0).as(Look::RowName),
    members("txtEdit", 0, blockSize - 1).at(1, 1).rowsOf(10).as(Look::Cell).called("Byte %1"),
    group("#filler").at(13, 9).as(Look::Filler),
    group("#filler").at(13, 10).as(Look::Filler),
};

constexpr Place timing[] = {
    member("DT", 0).at(0, 0, 1, 2),
    member("Freq", 0).at(1, 0),
    member("Freq", 1).at(1, 1),
    one("ImageSize").at(2, 0, 1, 2),
    one("DTInput").at(3, 0).wide(12).called("Value of the selected field of the detailed timing"),
};
constexpr Place horizontal[] = {
    members("DT", 1, 2).at(0, 0),
    members("DT", 5, 6).at(2, 0).roomFor("Sync Pulse Width - 1023 pixels"),
    member("DT", 9).at(4, 0),
};
constexpr Place vertical[] = {
    members("DT", 3, 4).at(0, 0),
    members("DT", 7, 8).at(2, 0).roomFor("Sync Pulse Width - 63 lines"),
    member("DT", 10).at(4, 0),
};
constexpr Place imageSize[] = {
    member("DT", 11).at(0, 0).wide(33).called("Horizontal image size"),
    member("DT", 12).at(0, 1).wide(33).called("Vertical image size"),
};

constexpr Place timingFlags[] = {
    one("DT1").at(0, 0, 1, 2),
    one("frmStereo").at(1, 0),
    one("Frame2").at(1, 1),
};
constexpr Place stereo[] = {members("DTStereo", 0, 6)};
constexpr Place sync[] = {
    members("DTSync", 0, 3).at(0, 0),
    one("SyncSerrate").at(4, 0),
    one("SyncLine").at(5, 0).onKey("Alt+Y").called("Click to change"),
    one("VSyncLine").at(6, 0).onKey("Alt+V").called("Click to change"),
    one("Label7").at(7, 0),
};

constexpr Area areas[] = {
    {"#identity", Control::noIndex, identity},
    {"#grid", Control::noIndex, grid, Spacing::None},
    {"Hints", 9, timing},
    {"Freq", 0, horizontal},
    {"Freq", 1, vertical},
    {"ImageSize", Control::noIndex, imageSize},
    {"Hints", 10, timingFlags},
    {"frmStereo", Control::noIndex, stereo},
    {"Frame2", Control::noIndex, sync},
};

} // namespace

std::span<const Area> blockAreas() {
    return areas;
}

} // namespace wb::desktop
