#include "fields/cta_data_blocks.h"

namespace wb::fields {

namespace {

constexpr auto linkRates = std::to_array<Choice>({{0, "none"},
                                                  {1, "3 Gbit/s on 3 lanes"},
                                                  {2, "6 Gbit/s on 3 lanes"},
                                                  {3, "6 Gbit/s on 4 lanes"},
                                                  {4, "8 Gbit/s on 4 lanes"},
                                                  {5, "10 Gbit/s on 4 lanes"},
                                                  {6, "12 Gbit/s on 4 lanes"}});
constexpr auto sliceCounts = std::to_array<Choice>({{0, "none"},
                                                    {1, "1 slice up to 340 MHz"},
                                                    {2, "2 slices up to 340 MHz each"},
                                                    {3, "4 slices up to 340 MHz each"},
                                                    {4, "8 slices up to 340 MHz each"},
                                                    {5, "8 slices up to 400 MHz each"},
                                                    {6, "12 slices up to 400 MHz each"},
                                                    {7, "16 slices up to 400 MHz each"}});
constexpr auto noRate = std::to_array<Choice>({{0, "not above 340 MHz"}});
constexpr auto noVariableRate = std::to_array<Choice>({{0, "none"}});
constexpr auto noLimit = std::to_array<Choice>({{0, "not told"}});

constexpr Row rateRow = {.name = "max_tmds_clock",
                         .label = "Highest TMDS character rate",
                         .parts = {{5}},
                         .unit = "MHz",
                         .scale = 5,
                         .choices = noRate};
constexpr Row minRateRow = {.name = "vrr_min",
                            .label = "Least variable refresh rate",
                            .parts = {{9, 5, 0}},
                            .unit = "Hz",
                            .choices = noVariableRate};
constexpr Row maxRateRow = {.name = "vrr_max",
                            .label = "Highest variable refresh rate",
                            .parts = {{9, 7, 6}, {10}},
                            .unit = "Hz",
                            .choices = noLimit};

/// HDMI 2.1, table 10-6: the capabilities, which two kinds of data blocks hold from byte 4 on.
constexpr std::array<Row, 37> capabilityRows = {{
    {.name = "version", .label = "Version", .parts = {{4}}},
    rateRow,
    flagAt(6, 7, "scdc_present", "Has SCDC"),
    flagAt(6, 6, "read_request", "Starts SCDC read requests"),
    flagAt(6, 5, "cable_status", "Tells the status of the cable"),
    flagAt(6, 4, "color_bits_indication", "Takes the colour bit count in packets"),
    flagAt(6, 3, "scramble_below_340", "Scrambles at or below 340 MHz"),
    flagAt(6, 2, "independent_view", "3D independent view"),
    flagAt(6, 1, "dual_view", "3D dual view"),
    flagAt(6, 0, "osd_disparity", "3D disparity of the on-screen display"),
    {.name = "max_frl_rate",
     .label = "Highest fixed rate link",
     .parts = {{7, 7, 4}},
     .kind = Kind::Choice,
     .choices = linkRates},
    flagAt(7, 3, "uhd_vic", "Takes ultra-high-definition video codes"),
    flagAt(7, 2, "deep_color_420_48", "Deep colour in YCbCr 4:2:0, 48 bit"),
    flagAt(7, 1, "deep_color_420_36", "Deep colour in YCbCr 4:2:0, 36 bit"),
    flagAt(7, 0, "deep_color_420_30", "Deep colour in YCbCr 4:2:0, 30 bit"),
    flagAt(8, 7, "fapa_end_extended", "FAPA ends late"),
    flagAt(8, 6, "qms", "Quick media switching"),
    flagAt(8, 5, "m_delta", "Takes changes of M at quick media switching"),
    flagAt(8, 4, "cinema_vrr", "Variable refresh of cinema rates"),
    flagAt(8, 3, "negative_m_vrr", "Takes negative M at variable refresh"),
    flagAt(8, 2, "fast_vactive", "Fast vertical active"),
    flagAt(8, 1, "allm", "Auto low latency mode"),
    flagAt(8, 0, "fapa_start", "FAPA starts after the first blank line"),
    minRateRow,
    maxRateRow,
    flagAt(11, 7, "dsc_1_2a", "Display stream compression 1.2a"),
    flagAt(11, 6, "dsc_native_420", "Compresses YCbCr 4:2:0"),
    flagAt(11, 5, "qms_tfr_max", "Quick media switching up to the highest rate"),
    flagAt(11, 4, "qms_tfr_min", "Quick media switching down to the least rate"),
    flagAt(11, 3, "dsc_all_bpp", "Compresses to any bits a pixel"),
    flagAt(11, 2, "dsc_16bpc", "Compresses 16 bit a colour"),
    flagAt(11, 1, "dsc_12bpc", "Compresses 12 bit a colour"),
    flagAt(11, 0, "dsc_10bpc", "Compresses 10 bit a colour"),
    {.name = "dsc_max_frl_rate",
     .label = "Highest fixed rate link, compressed",
     .parts = {{12, 7, 4}},
     .kind = Kind::Choice,
     .choices = linkRates},
    {.name = "dsc_max_slices",
     .label = "Most slices, compressed",
     .parts = {{12, 3, 0}},
     .kind = Kind::Choice,
     .choices = sliceCounts},
    reservedAt(13, 7, 6, "reserved_1"),
    {.name = "dsc_chunk_kilobytes", .label = "Kilobytes of a line's chunks", .parts = {{13, 5, 0}}, .bias = 1},
}};
constexpr unsigned highRate = 340;

void readCapabilities(const DataBlock& block) {
    const Scope& content = block.content;
    content.fill(capabilityRows, block.end);
    std::optional<HdmiSummary>& hdmi = content.summary().hdmi;
    if (!hdmi) {
        hdmi.emplace();
    }
    hdmi->forum = true;
    const unsigned rate = block.end > 5 ? content.byte(5) * 5U : 0U;
    if (rate != 0) {
        hdmi->maxTmdsClockMegahertz = static_cast<int>(rate);
    }
    if (rate != 0 && rate <= highRate) {
        content.tell(Severity::Warning, "cta.hdmi_forum_rate", 5, rateRow.name,
                     "The highest character rate of " + std::to_string(rate) +
                         " MHz belongs into the HDMI data block: here stands 0 or more than 340 MHz; set it to 0.");
    }
    if (block.end > 10 && content.raw(maxRateRow.parts) != 0 &&
        content.raw(maxRateRow.parts) < content.raw(minRateRow.parts)) {
        content.tell(Severity::Error, "cta.variable_rates", 9, minRateRow.name,
                     "The least variable refresh rate is above the highest, so that sources cannot use variable "
                     "refresh; correct the two.");
    }
}

void describeBlockCount(const Scope&, std::uint64_t raw, Field& field) {
    field.text += raw == 1 ? " block" : " blocks";
}
constexpr std::array<Row, 1> overrideRows = {{{.name = "extension_count",
                                               .label = "Extension blocks, in place of byte 126",
                                               .parts = {{2}},
                                               .read = describeBlockCount}}};

} // namespace

void readHdmiForum(const DataBlock& block) {
    block.content.add(ouiRow(1));
    readCapabilities(block);
}

void readHdmiForumSinkCapability(const DataBlock& block) {
    const std::size_t end = std::min<std::size_t>(block.end, 4);
    block.content.addBytes(2, end, "reserved_head", "Reserved", Kind::Reserved);
    readCapabilities(block);
}

void readExtensionOverride(const DataBlock& block) {
    block.content.fill(overrideRows, block.end);
    constexpr std::size_t wantedPlace = Image::blockSize + 4;
    if (block.content.place(0) != wantedPlace) {
        block.content.tell(Severity::Warning, "cta.override_place", 0, "",
                           "The number of extension blocks is told elsewhere than in the first data block of block 1, "
                           "so that readers do not find it; move it there.");
    }
}

} // namespace wb::fields
