#include "cea/detailed_slots.h"

#include "block0/panel_detailed_timing.h"
#include "cea/checksum.h"
#include "cea/handlers.h"
#include "cea/location.h"
#include "cea/procedure.h"
#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "report/descriptor_layout.h"
#include "report/detailed_timing.h"
#include "report/monitor_descriptor.h"

namespace wb::cea {

namespace {

constexpr int lastFixedSlot = 6;

constexpr report::DetailedTimingRules slotRules = {
    .onFailure = Statements::OnFailure::NextStatement,
    .texts = &SharedVariables::ExtDetailedBlockText,
    .emptiedTexts = &SharedVariables::ExtDetailedBlockNote,
    .convertDescriptor = ConvertDetailedTiminga,
    .recalculateChecksum = CalcCheckSum,
    .obeysDescriptorFlag = false,
    .titleTellsScan = true,
    .testsStereoDigit = true,
};

std::string_view headingOf(std::string_view tag) {
    if (tag == "00") {
        return "Defined by Manufacturer:";
    }
    const std::string_view heading = report::descriptorHeading(tag);
    return heading.empty() ? "No Data:" : heading;
}

/// A last slot that is not whole counts too: it runs into the cells behind the timing area.
void findSlot(const Procedure& run, int index) {
    for (int slot = 0; slot <= lastFixedSlot; ++slot) {
        const int base = location(run.workbench.ExtDtdStart, detailedBlockSize * slot);
        if (index >= base && index < base + detailedBlockSize) {
            run.screen.CurrentBlockBase = int16From(base);
            run.screen.CurrentBlockNumber = int16From(slot);
        }
    }
}

} // namespace

std::int16_t lastSlotOf(const Workbench& workbench) {
    return int16From((extensionCells::lastTiming - workbench.ExtDtdStart) / detailedBlockSize);
}

void ConvertDetailedTiming(Workbench& workbench) {
    report::decodeDetailedTiming(workbench.frmCEA_EXT(), slotRules);
}

void ConvertDetailedTiminga(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const std::string tag =
            upperCase(run.readText(location(run.screen.CurrentBlockBase, report::descriptorTagCell)));
        run.statement([&] { run.workbench.ExtDetailedBlockText(run.screen.CurrentBlockNumber) = headingOf(tag); });
    });
}

void openSlot(Workbench& workbench, int index) {
    procedure(workbench, [&](const Procedure& run) {
        run.workbench.ExtDtdSlotCount = lastSlotOf(run.workbench);
        findSlot(run, index);
        FrmCeaExt& screen = run.screen;
        const int base = screen.CurrentBlockBase;
        block0::resetDetailedTiming(screen, screen.DTStereo.last());
        run.colour(base, base + detailedBlockSize - 1, CellColour::Group);
        screen.Hints(FrmCeaExt::timingValuePanel).setCaption(block0::detailedTimingCaption(base));
        screen.Hints(FrmCeaExt::timingFlagPanel).setCaption(block0::detailedTimingCaption(base));
        screen.CurrentBlockIsDescriptor = flagFalse;
        block0::showDetailedTimingField(run.statement, screen, index - base);
        ConvertDetailedTiming(run.workbench);
    });
}

} // namespace wb::cea
