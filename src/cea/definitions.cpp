#include "cea/definitions.h"

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
#include "core/edid_image.h"

namespace wb::cea {

namespace {

/// From this length on an audio block has a second descriptor, and a vendor block its extension byte.
constexpr int longBlock = 6;

/// The slots behind the fifth are decoded only where they are whole. A walk from cell 0, which a block without timings
/// gets, stops at cell 90.
bool isDecodedSlot(int slot, int base) {
    constexpr int lastSlot = 6;
    if (slot <= 4) {
        return true;
    }
    return slot <= lastSlot && lastTimingCell - base >= detailedBlockSize && base != 90;
}

} // namespace

void BuildCEA_EXT_Definations(Workbench& workbench) {
    procedure(workbench, [](const Procedure& run) {
        for (const auto decode : {BuildVersion, LocateDataBlocks, BuildDTVSupport, BuildVideoTag, BuildShortVideo,
                                  BuildAudioTag, BuildAudioChannels, BuildSampFreq, BuildBitRate}) {
            decode(run.wb);
        }
        if (run.wb.AudioBlockLength >= longBlock) {
            LocateAudioDescriptors(run.wb);
            BuildLastAudioChannels(run.wb);
            BuildLastSampFreq(run.wb);
            BuildLastBitRate(run.wb);
        }
        for (const auto decode : {BuildSpeakerTag, BuildSpeaker, BuildVendorTag, BuildVendorID, BuildVendorData}) {
            decode(run.wb);
        }
        if (run.wb.VendorBlockLength >= longBlock) {
            BuildVSDBExt(run.wb);
        }
        BuildDetailedTimings(run.wb);
    });
}

void BuildDetailedTimings(Workbench& workbench) {
    procedure(workbench, [](const Procedure& run) {
        FrmCeaExt& screen = run.screen;
        run.wb.ExtDtdSlotCount = lastSlotOf(run.wb);
        for (int slot = 0; slot <= run.wb.ExtDtdSlotCount; ++slot) {
            run.statement([&] {
                screen.CurrentBlockBase =
                    slot == 0 ? timingOffset(run.wb) : int16From(screen.CurrentBlockBase + detailedBlockSize);
                screen.CurrentBlockNumber = int16From(slot);
                if (isDecodedSlot(slot, screen.CurrentBlockBase)) {
                    ConvertDetailedTiming(run.wb);
                }
            });
        }
        CalcCheckSum(run.wb);
    });
}

} // namespace wb::cea
