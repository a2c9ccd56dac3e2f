#include "cea/dispatch.h"

#include "cea/data_blocks.h"
#include "cea/detailed_slots.h"
#include "cea/dispatch_audio.h"
#include "cea/dispatch_steps.h"
#include "cea/dtv_support.h"
#include "cea/header.h"
#include "cea/location.h"
#include "cea/panels.h"
#include "cea/procedure.h"
#include "cea/screen.h"
#include "cea/short_audio.h"
#include "cea/short_video.h"
#include "cea/speaker.h"
#include "cea/tag_panel.h"
#include "cea/vendor.h"
#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/edid_image.h"

namespace wb::cea {

namespace {

/// Cells counted from the start of a block.
bool isIn(int index, int start, int first, int last) {
    return index >= location(start, first) && index <= location(start, last);
}

void seekBox(const Procedure& run, Control& box) {
    if (seeks(run.workbench)) {
        box.setEnabled(true);
        run.focusOn(box);
    }
}

void openPlainCell(const Procedure& run, int index) {
    run.screen.Hints(panels::tag).setVisible(false);
    colourField(run, index);
}

void openVersion(const Procedure& run, int index) {
    showPanel(run, panels::version);
    for (int i = 1; i <= 3; ++i) {
        run.screen.lbEDID(i).setVisible(false);
    }
    run.screen.VerRel.setEnabled(false);
    colourField(run, index);
    BuildVersion(run.workbench);
    const std::string version = std::to_string(run.readByte(index));
    run.screen.VerRev.setText(version);
    run.screen.lbEDID(0).setCaption("Version Number - " + version);
    seekBox(run, run.screen.VerRev);
}

void openOffset(const Procedure& run, int index) {
    showPanel(run, panels::offset);
    run.screen.Hints(panels::version).setVisible(false);
    run.screen.lbEDID(1).setVisible(false);
    run.screen.lbEDID(2).setVisible(false);
    run.screen.lbEDID(5).setVisible(true);
    run.screen.VerRev.setEnabled(false);
    run.screen.VerRel.setEnabled(false);
    colourField(run, index);
    LocateDataBlocks(run.workbench);
    const std::string offset = std::to_string(run.readByte(index));
    run.screen.DetailOffset.setText(offset);
    run.screen.lbEDID(5).setCaption(offsetCaption(offset));
    seekBox(run, run.screen.DetailOffset);
}

void openSupport(const Procedure& run, int index) {
    showPanel(run, panels::support);
    run.screen.Hints(panels::offset).setVisible(false);
    colourField(run, index);
    BuildDTVSupport(run.workbench);
}

void openVideoHeader(const Procedure& run, int index) {
    openHeader(run, index, "ShortVideo");
    run.screen.FrmAudioFormat.setVisible(false);
    run.screen.Hints(panels::support).setVisible(false);
    BuildVideoTag(run.workbench);
}

void openVideoDescriptor(const Procedure& run, int index) {
    Workbench& workbench = run.workbench;
    showPanel(run, panels::videoDescriptor, index, "CEA Short Video Descriptor (");
    colourInBlock(run, index, workbench.VideoBlockStart, workbench.VideoBlockLength);
    workbench.ShortVideoCell = int16From(index);
    run.screen.FrmAudioFormat.setVisible(false);
    BuildShortVideo(workbench);
    const int next = location(workbench.VideoBlockStart, workbench.VideoBlockLength + 1);
    run.statement([&] {
        if (timingOffset(workbench) != next && workbench.AudioBlockStart == 0 && workbench.VideoBlockStart != 0) {
            workbench.AudioBlockStart = int16From(next);
        }
    });
}

void openSpeakerHeader(const Procedure& run, int index) {
    openHeader(run, index, "ShortSpeaker");
    run.screen.Hints(panels::bitRate).setVisible(false);
    run.screen.Frmbitrate.setVisible(false);
    run.screen.FrmAudioFormat.setVisible(false);
    BuildSpeakerTag(run.workbench);
}

void openSpeakers(const Procedure& run, int index) {
    showPanel(run, panels::speakers, index, "Speaker (");
    colourInBlock(run, index, run.workbench.SpeakerBlockStart, run.workbench.SpeakerBlockLength);
    BuildSpeaker(run.workbench);
}

void openReservedSpeakers(const Procedure& run, int index) {
    showPanel(run, panels::reservedSpeakers, index, "Speaker (");
    colourInBlock(run, index, run.workbench.SpeakerBlockStart, run.workbench.SpeakerBlockLength);
    run.screen.Hints(panels::speakers).setVisible(false);
}

void openVendorHeader(const Procedure& run, int index) {
    openHeader(run, index, "ShortVendor");
    run.screen.Hints(panels::reservedSpeakers).setVisible(false);
    BuildVendorTag(run.workbench);
}

void openVendorPanel(const Procedure& run, int panel, int index, std::string_view words) {
    showPanel(run, panel, index, words);
    colourInBlock(run, index, run.workbench.VendorBlockStart, run.workbench.VendorBlockLength);
}

void openVendorID(const Procedure& run, int index) {
    openVendorPanel(run, panels::vendorID, index, "Vendor Specific Data Block (");
    run.screen.lbVendorData.setVisible(true);
    BuildVendorID(run.workbench);
    seekBox(run, run.screen.txtBoxVendorID);
}

void openVendorData(const Procedure& run, int index) {
    openVendorPanel(run, panels::vendorData, index, "Vendor Specific Data Block (");
    run.screen.lbVendorBlock.setVisible(true);
    run.screen.lbVendorBlock.setCaption("Enter your vendor specific data. ");
    run.screen.Hints(panels::vendorID).setVisible(false);
    BuildVendorData(run.workbench);
    seekBox(run, run.screen.txtBoxVendorData);
}

void openVendorExtension(const Procedure& run, int index) {
    openVendorPanel(run, panels::vendorExtension, index, "VSDB Extension (");
    run.screen.Hints(panels::vendorID).setVisible(false);
    BuildVSDBExt(run.workbench);
}

void openTiming(const Procedure& run, int index) {
    run.screen.Hints(panels::tag).setVisible(false);
    openSlot(run.workbench, index);
}

/// The two cells have no panel here. The labels of block 0's panel for them are addressed all the same, and this screen
/// has none of that number.
void openEnd(const Procedure& run, int index) {
    run.screen.Hints(panels::tag).setVisible(false);
    const int other = index == checksumCell ? checksumCell - 1 : checksumCell;
    run.colour(other, other, CellColour::Group);
    colourField(run, index);
    run.statement([&] { run.screen.lbEDID(7).setFontBold(index == checksumCell); });
    run.statement([&] { run.screen.lbEDID(6).setFontBold(index != checksumCell); });
}

struct Row {
    bool (*matches)(const Workbench&, int index);
    void (*open)(const Procedure&, int index);
};

/// A location of 0, not known, counts like any other.
constexpr Row rows[] = {
    {[](const Workbench&, int i) { return i == extensionCells::tag; }, &openPlainCell},
    {[](const Workbench&, int i) { return i == extensionCells::version; }, &openVersion},
    {[](const Workbench&, int i) { return i == extensionCells::timingOffset; }, &openOffset},
    {[](const Workbench&, int i) { return i == extensionCells::support; }, &openSupport},
    {[](const Workbench& workbench, int i) { return i == workbench.VideoBlockStart; }, &openVideoHeader},
    {[](const Workbench& workbench, int i) {
         return isIn(i, workbench.VideoBlockStart, 1, workbench.VideoBlockLength);
     },
     &openVideoDescriptor},
    {[](const Workbench& workbench, int i) { return i == workbench.AudioBlockStart; }, &openAudioHeader},
    {[](const Workbench& workbench, int i) { return i == firstAudioCell(workbench, 1); }, &openAudioChannels},
    {[](const Workbench& workbench, int i) { return i == lastAudioCell(workbench, 1); }, &openLastAudioChannels},
    {[](const Workbench& workbench, int i) { return i == firstAudioCell(workbench, 2); }, &openFrequencies},
    {[](const Workbench& workbench, int i) { return i == lastAudioCell(workbench, 2); }, &openLastFrequencies},
    {[](const Workbench& workbench, int i) { return i == firstAudioCell(workbench, 3); }, &openBitRate},
    {[](const Workbench& workbench, int i) { return i == lastAudioCell(workbench, 3); }, &openLastBitRate},
    {[](const Workbench& workbench, int i) { return i == workbench.SpeakerBlockStart; }, &openSpeakerHeader},
    {[](const Workbench& workbench, int i) { return isIn(i, workbench.SpeakerBlockStart, 1, 1); }, &openSpeakers},
    {[](const Workbench& workbench, int i) { return isIn(i, workbench.SpeakerBlockStart, 2, 3); },
     &openReservedSpeakers},
    {[](const Workbench& workbench, int i) { return i == workbench.VendorBlockStart; }, &openVendorHeader},
    {[](const Workbench& workbench, int i) { return isIn(i, workbench.VendorBlockStart, 1, 3); }, &openVendorID},
    {[](const Workbench& workbench, int i) { return isIn(i, workbench.VendorBlockStart, 4, 5); }, &openVendorData},
    {[](const Workbench& workbench, int i) { return isIn(i, workbench.VendorBlockStart, 6, 6); }, &openVendorExtension},
    {[](const Workbench& workbench, int i) { return i >= workbench.ExtDtdStart && i <= extensionCells::lastTiming; },
     &openTiming},
    {[](const Workbench&, int i) { return i > extensionCells::lastTiming; }, &openEnd},
};

} // namespace

void txtEdit_GotFocus(Workbench& workbench, int index) {
    procedure(workbench, [&](const Procedure& run) {
        run.workbench.LastAudioFocus = flagFalse;
        block0::beginFocusDispatch(ceaScreenRules, run.workbench);
        run.screen.Hints(panels::tag).setVisible(true);
        for (const Row& row : rows) {
            if (row.matches(run.workbench, index)) {
                row.open(run, index);
                break;
            }
        }
        block0::endFocusDispatch(ceaScreenRules, run.workbench, index);
    });
}

} // namespace wb::cea
