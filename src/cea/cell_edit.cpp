#include "cea/cell_edit.h"

#include "cea/data_blocks.h"
#include "cea/detailed_slots.h"
#include "cea/dtv_support.h"
#include "cea/header.h"
#include "cea/procedure.h"
#include "cea/short_audio.h"
#include "cea/short_video.h"
#include "cea/speaker.h"
#include "cea/tag_panel.h"
#include "cea/vendor.h"

namespace wb::cea {

namespace {

using block0::CellRange;

CellRange at(int cell) {
    return {cell, cell};
}

CellRange from(int start, int first, int last) {
    return {location(start, first), location(start, last)};
}

struct Row {
    CellRange (*cells)(const Workbench&);
    void (*decode)(Workbench&);
};

constexpr Row rows[] = {
    {[](const Workbench&) { return at(1); }, &BuildVersion},
    {[](const Workbench&) { return at(2); }, &LocateDataBlocks},
    {[](const Workbench&) { return at(3); }, &BuildDTVSupport},
    {[](const Workbench& wb) { return at(wb.VideoBlockStart); }, &BuildVideoTag},
    {[](const Workbench& wb) { return from(wb.VideoBlockStart, 1, wb.VideoBlockLength); }, &BuildShortVideo},
    {[](const Workbench& wb) { return at(wb.AudioBlockStart); }, &BuildAudioTag},
    {[](const Workbench& wb) { return at(firstAudioCell(wb, 1)); }, &BuildAudioChannels},
    {[](const Workbench& wb) { return at(lastAudioCell(wb, 1)); }, &BuildLastAudioChannels},
    {[](const Workbench& wb) { return at(lastAudioCell(wb, 2)); }, &BuildLastSampFreq},
    {[](const Workbench& wb) { return at(firstAudioCell(wb, 2)); }, &BuildSampFreq},
    {[](const Workbench& wb) { return at(firstAudioCell(wb, 3)); }, &BuildBitRate},
    {[](const Workbench& wb) { return at(lastAudioCell(wb, 3)); }, &BuildLastBitRate},
    {[](const Workbench& wb) { return at(wb.SpeakerBlockStart); }, &BuildSpeakerTag},
    {[](const Workbench& wb) { return from(wb.SpeakerBlockStart, 1, 1); }, &BuildSpeaker},
    {[](const Workbench& wb) { return at(wb.VendorBlockStart); }, &BuildVendorTag},
    {[](const Workbench& wb) { return from(wb.VendorBlockStart, 1, 3); }, &BuildVendorID},
    // The length itself is the end, not the cell that it leads to: the row is empty for most blocks.
    {[](const Workbench& wb) {
         return CellRange{location(wb.VendorBlockStart, 4), wb.VendorBlockLength - 1};
     },
     &BuildVendorData},
    {[](const Workbench& wb) { return from(wb.VendorBlockStart, 6, 6); }, &BuildVSDBExt},
    {[](const Workbench& wb) {
         return CellRange{wb.ExtDtdStart, lastTimingCell};
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
            if (row.cells(run.wb).contains(index)) {
                row.decode(run.wb);
                return;
            }
        }
    });
}

} // namespace wb::cea
