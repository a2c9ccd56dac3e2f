#include "cea/cell_edit.h"

#include "cea/data_blocks.h"
#include "cea/detailed_slots.h"
#include "cea/dtv_support.h"
#include "cea/header.h"
#include "cea/location.h"
#include "cea/procedure.h"
#include "cea/short_audio.h"
#include "cea/short_video.h"
#include "cea/speaker.h"
#include "cea/tag_panel.h"
#include "cea/vendor.h"
#include "core/base/image_layout.h"

namespace wb::cea {

namespace {

CellRange from(int start, int first, int last) {
    return {location(start, first), location(start, last)};
}

struct Row {
    CellRange (*cells)(const Workbench&);
    void (*decode)(Workbench&);
};

constexpr Row rows[] = {
    {[](const Workbench&) { return oneCell(extensionCells::version); }, &BuildVersion},
    {[](const Workbench&) { return oneCell(extensionCells::timingOffset); }, &LocateDataBlocks},
    {[](const Workbench&) { return oneCell(extensionCells::support); }, &BuildDTVSupport},
    {[](const Workbench& workbench) { return oneCell(workbench.VideoBlockStart); }, &BuildVideoTag},
    {[](const Workbench& workbench) { return from(workbench.VideoBlockStart, 1, workbench.VideoBlockLength); },
     &BuildShortVideo},
    {[](const Workbench& workbench) { return oneCell(workbench.AudioBlockStart); }, &BuildAudioTag},
    {[](const Workbench& workbench) { return oneCell(firstAudioCell(workbench, 1)); }, &BuildAudioChannels},
    {[](const Workbench& workbench) { return oneCell(lastAudioCell(workbench, 1)); }, &BuildLastAudioChannels},
    {[](const Workbench& workbench) { return oneCell(lastAudioCell(workbench, 2)); }, &BuildLastSampFreq},
    {[](const Workbench& workbench) { return oneCell(firstAudioCell(workbench, 2)); }, &BuildSampFreq},
    {[](const Workbench& workbench) { return oneCell(firstAudioCell(workbench, 3)); }, &BuildBitRate},
    {[](const Workbench& workbench) { return oneCell(lastAudioCell(workbench, 3)); }, &BuildLastBitRate},
    {[](const Workbench& workbench) { return oneCell(workbench.SpeakerBlockStart); }, &BuildSpeakerTag},
    {[](const Workbench& workbench) { return from(workbench.SpeakerBlockStart, 1, 1); }, &BuildSpeaker},
    {[](const Workbench& workbench) { return oneCell(workbench.VendorBlockStart); }, &BuildVendorTag},
    {[](const Workbench& workbench) { return from(workbench.VendorBlockStart, 1, 3); }, &BuildVendorID},
    // The length itself is the end, not the cell that it leads to: the row is empty for most blocks.
    {[](const Workbench& workbench) {
         return CellRange{location(workbench.VendorBlockStart, 4), workbench.VendorBlockLength - 1};
     },
     &BuildVendorData},
    {[](const Workbench& workbench) { return from(workbench.VendorBlockStart, 6, 6); }, &BuildVSDBExt},
    {[](const Workbench& workbench) {
         return CellRange{workbench.ExtDtdStart, extensionCells::lastTiming};
     },
     &ConvertDetailedTiming},
};

} // namespace

void txtEdit_KeyUp(Workbench& workbench, int index, int /*keyCode*/) {
    procedure(workbench, [&](const Procedure& run) {
        if (run.text(index).size() != 2) {
            return;
        }
        for (const Row& row : rows) {
            if (row.cells(run.workbench).contains(index)) {
                row.decode(run.workbench);
                return;
            }
        }
    });
}

} // namespace wb::cea
