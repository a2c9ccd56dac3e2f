#include "cea/speaker.h"

#include <array>

#include "cea/flag_list.h"
#include "cea/handlers.h"
#include "cea/location.h"
#include "cea/procedure.h"
#include "core/base/bits.h"

namespace wb::cea {

namespace {

constexpr std::array<ListedFlag, 7> positions = {
    {{0, "FL/FR,"}, {1, " LFE,"}, {2, " FC,"}, {3, " RL/RR,"}, {4, " RC,"}, {5, " FLC/FRC,"}, {6, " RLC/RRC"}}};

int positionsCell(const Workbench& workbench) {
    return location(workbench.SpeakerBlockStart, 1);
}

} // namespace

void BuildSpeaker(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeFlags(run, positionsCell(run.workbench), positions, run.screen.speaker, run.workbench.SpeakerText);
    });
}

void speaker_Click(Workbench& workbench, int index) {
    panelHandler(workbench, [&](const Procedure& run) {
        const int place = positions[static_cast<std::size_t>(index)].place;
        constexpr BitRange withoutReserved{6, 0};
        writeFlag(run, positionsCell(run.workbench), withoutReserved, place, run.screen.speaker(index));
        BuildSpeaker(run.workbench);
    });
}

} // namespace wb::cea
