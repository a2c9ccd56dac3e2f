#include "cea/definitions.h"

#include "cea/checksum.h"
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
#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/edid_image.h"
#include "core/step.h"

namespace wb::cea {

namespace {

/// The slots behind the fifth are decoded only where they are whole. A walk from cell 0, which a block without timings
/// gets, stops at cell 90.
bool isDecodedSlot(int slot, int base) {
    constexpr int lastSlot = 6;
    if (slot <= 4) {
        return true;
    }
    return slot <= lastSlot && extensionCells::lastTiming - base >= detailedBlockSize && base != 90;
}

} // namespace

void BuildCEA_EXT_Definations(Workbench& workbench) {
    const Step step(workbench, "decoding the extension");
    procedure(workbench, [](const Procedure& run) {
        for (const auto decode : {BuildVersion, LocateDataBlocks, BuildDTVSupport, BuildVideoTag, BuildShortVideo,
                                  BuildAudioTag, BuildAudioChannels, BuildSampFreq, BuildBitRate}) {
            decode(run.workbench);
        }
        if (run.workbench.AudioBlockLength >= longDataBlock) {
            LocateAudioDescriptors(run.workbench);
            BuildLastAudioChannels(run.workbench);
            BuildLastSampFreq(run.workbench);
            BuildLastBitRate(run.workbench);
        }
        for (const auto decode : {BuildSpeakerTag, BuildSpeaker, BuildVendorTag, BuildVendorID, BuildVendorData}) {
            decode(run.workbench);
        }
        if (run.workbench.VendorBlockLength >= longDataBlock) {
            BuildVSDBExt(run.workbench);
        }
        BuildDetailedTimings(run.workbench);
    });
}

void BuildDetailedTimings(Workbench& workbench) {
    procedure(workbench, [](const Procedure& run) {
        FrmCeaExt& screen = run.screen;
        run.workbench.ExtDtdSlotCount = lastSlotOf(run.workbench);
        for (int slot = 0; slot <= run.workbench.ExtDtdSlotCount; ++slot) {
            run.statement([&] {
                screen.CurrentBlockBase =
                    slot == 0 ? timingOffset(run.workbench) : int16From(screen.CurrentBlockBase + detailedBlockSize);
                screen.CurrentBlockNumber = int16From(slot);
                if (isDecodedSlot(slot, screen.CurrentBlockBase)) {
                    ConvertDetailedTiming(run.workbench);
                }
            });
        }
        CalcCheckSum(run.workbench);
    });
}

} // namespace wb::cea
