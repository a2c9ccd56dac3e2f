#include "cea/speaker.h"

#include <array>

#include "cea/flag_list.h"

namespace wb::cea {

namespace {

constexpr std::array<ListedFlag, 7> positions = {
    {{1, "FL/FR,"}, {2, " LFE,"}, {4, " FC,"}, {8, " RL/RR,"}, {16, " RC,"}, {32, " FLC/FRC,"}, {64, " RLC/RRC"}}};

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
        const int bit = positions[static_cast<std::size_t>(index)].bit;
        constexpr int withoutReserved = 127;
        writeFlag(run, positionsCell(run.workbench), withoutReserved, bit, run.screen.speaker(index));
        BuildSpeaker(run.workbench);
    });
}

} // namespace wb::cea
