#include "fields/cta_data_blocks.h"

namespace wb::fields {

namespace {

/// The 24 bits of a speaker mask; `offset` is that of its first byte. CTA-861-H, tables 45 to 47.
template <std::size_t offset>
constexpr std::array<Row, 21> speakerRows = {{
    flagAt(offset, 7, "flw_frw", "Front left/right wide"),
    flagAt(offset, 6, "rlc_rrc", "Rear left/right of center"),
    flagAt(offset, 5, "flc_frc", "Front left/right of center"),
    flagAt(offset, 4, "bc", "Back center"),
    flagAt(offset, 3, "bl_br", "Back left/right"),
    flagAt(offset, 2, "fc", "Front center"),
    flagAt(offset, 1, "lfe1", "Low frequency effects 1"),
    flagAt(offset, 0, "fl_fr", "Front left/right"),
    flagAt(offset + 1, 7, "tpsil_tpsir", "Top side left/right"),
    flagAt(offset + 1, 6, "sil_sir", "Side left/right"),
    flagAt(offset + 1, 5, "tpbc", "Top back center"),
    flagAt(offset + 1, 4, "lfe2", "Low frequency effects 2"),
    flagAt(offset + 1, 3, "ls_rs", "Left/right surround"),
    flagAt(offset + 1, 2, "tpfc", "Top front center"),
    flagAt(offset + 1, 1, "tpc", "Top center"),
    flagAt(offset + 1, 0, "tpfl_tpfr", "Top front left/right"),
    reservedAt(offset + 2, 7, 4, "reserved_mask"),
    flagAt(offset + 2, 3, "tpls_tprs", "Top left/right surround"),
    flagAt(offset + 2, 2, "btfl_btfr", "Bottom front left/right"),
    flagAt(offset + 2, 1, "btfc", "Bottom front center"),
    flagAt(offset + 2, 0, "tpbl_tpbr", "Top back left/right"),
}};

constexpr std::array<Row, 4> roomHead = {{
    flagAt(2, 7, "display_known", "Place of the display is told"),
    flagAt(2, 6, "speakers_known", "Room of the speakers is told"),
    flagAt(2, 5, "locations_known", "Speaker location data blocks follow"),
    {.name = "speaker_count", .label = "Speakers", .parts = {{2, 4, 0}}, .bias = 1},
}};

/// In 64ths of the room's extent.
constexpr Row coordinateRow(std::size_t offset, std::string_view name, std::string_view label) {
    return {.name = name, .label = label, .parts = {{offset}}, .kind = Kind::Signed, .scale = 1.0 / 64, .decimals = 3};
}

/// Lengths are in decimetres.
constexpr std::array<Row, 6> roomRows = {{
    {.name = "x_max", .label = "Farthest speaker, x", .parts = {{6}}, .unit = "cm", .scale = 10},
    {.name = "y_max", .label = "Farthest speaker, y", .parts = {{7}}, .unit = "cm", .scale = 10},
    {.name = "z_max", .label = "Farthest speaker, z", .parts = {{8}}, .unit = "cm", .scale = 10},
    coordinateRow(9, "display_x", "Display, x"),
    coordinateRow(10, "display_y", "Display, y"),
    coordinateRow(11, "display_z", "Display, z"),
}};

/// CTA-861-H, table 49.
constexpr auto speakerNames = std::to_array<Choice>({{0x00, "front left"},
                                                     {0x01, "front right"},
                                                     {0x02, "front center"},
                                                     {0x03, "low frequency effects 1"},
                                                     {0x04, "back left"},
                                                     {0x05, "back right"},
                                                     {0x06, "front left of center"},
                                                     {0x07, "front right of center"},
                                                     {0x08, "back center"},
                                                     {0x09, "low frequency effects 2"},
                                                     {0x0A, "side left"},
                                                     {0x0B, "side right"},
                                                     {0x0C, "top front left"},
                                                     {0x0D, "top front right"},
                                                     {0x0E, "top front center"},
                                                     {0x0F, "top center"},
                                                     {0x10, "top back left"},
                                                     {0x11, "top back right"},
                                                     {0x12, "top side left"},
                                                     {0x13, "top side right"},
                                                     {0x14, "top back center"},
                                                     {0x15, "bottom front center"},
                                                     {0x16, "bottom front left"},
                                                     {0x17, "bottom front right"},
                                                     {0x18, "front left wide"},
                                                     {0x19, "front right wide"},
                                                     {0x1A, "left surround"},
                                                     {0x1B, "right surround"}});

constexpr std::array<Row, 5> locationRows = {{
    reservedAt(0, 7, 7, "reserved_1"),
    flagAt(0, 6, "has_coordinates", "Coordinates follow"),
    flagAt(0, 5, "active", "Active"),
    {.name = "channel", .label = "Channel", .parts = {{0, 4, 0}}},
    reservedAt(1, 7, 5, "reserved_2"),
}};
constexpr Row speakerRow = {
    .name = "speaker", .label = "Speaker", .parts = {{1, 4, 0}}, .kind = Kind::Choice, .choices = speakerNames};
constexpr std::array<Row, 3> coordinateRows = {
    {coordinateRow(2, "x", "Place, x"), coordinateRow(3, "y", "Place, y"), coordinateRow(4, "z", "Place, z")}};
constexpr unsigned coordinateBit = 0x40;
constexpr std::size_t shortLocation = 2;
constexpr std::size_t longLocation = 5;

} // namespace

void readSpeakerAllocation(const DataBlock& block) {
    block.content.fill(speakerRows<1>, block.end);
    for (const Row& row : speakerRows<1>) {
        const std::size_t offset = row.parts.begin()->offset;
        if (row.kind == Kind::Flag && offset < block.end && block.content.raw(row.parts) != 0) {
            block.content.summary().speakers.push_back(row.label);
        }
    }
}

void readRoomConfiguration(const DataBlock& block) {
    block.content.add(roomHead, block.end);
    block.content.add(speakerRows<3>, block.end);
    block.content.fill(roomRows, block.end);
}

void readSpeakerLocation(const DataBlock& block) {
    std::size_t number = 0;
    for (std::size_t offset = block.begin; offset < block.end;) {
        const Scope speaker = block.content.inner(offset, numbered("speaker", ++number));
        const std::size_t wanted = (speaker.byte(0) & coordinateBit) != 0 ? longLocation : shortLocation;
        const std::size_t size = std::min(wanted, block.end - offset);
        speaker.add(locationRows, size);
        if (size > 1) {
            speaker.add(speakerRow);
            speaker.add(coordinateRows, size);
        }
        offset += size;
    }
}

} // namespace wb::fields
