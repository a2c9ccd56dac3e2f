#include "fields/block0_parts.h"
#include "fields/cta_data_blocks.h"
#include "fields/extensions.h"

namespace wb::fields {

namespace {

constexpr std::size_t firstByte = extensionCells::dataBlocks;
/// Of data blocks, timings and padding; the check sum stands there.
constexpr std::size_t lastEnd = checksumCell;
/// The first revision with flags, and with data blocks.
constexpr unsigned flagRevision = 2;
constexpr unsigned dataBlockRevision = 3;

constexpr auto revisions = std::to_array<Choice>({{1, "1 (CEA-861)"}, {2, "2 (CEA-861-A)"}, {3, "3 (CEA-861-B on)"}});

void describeRevision(const Scope&, std::uint64_t raw, Field& field) {
    if (const std::string_view words = choiceText(revisions, raw); !words.empty()) {
        field.text = words;
    }
}

constexpr std::array<Row, 3> headRows = {{
    {.name = "tag", .label = "Extension tag", .parts = {{0}}},
    {.name = "revision", .label = "Revision", .parts = {{1}}, .read = describeRevision},
    {.name = "timing_offset", .label = "Offset of the first detailed timing", .parts = {{2}}},
}};
/// CTA-861-H, table 59.
constexpr Row nativeCountRow = {.name = "native_count", .label = "Native detailed timings", .parts = {{3, 3, 0}}};
constexpr Row audioRow = flagAt(3, 6, "basic_audio", "Basic audio");
constexpr Row ycc444Row = flagAt(3, 5, "ycbcr_444", "YCbCr 4:4:4");
constexpr Row ycc422Row = flagAt(3, 4, "ycbcr_422", "YCbCr 4:2:2");
constexpr std::array<Row, 5> flagRows = {
    {flagAt(3, 7, "underscan", "Underscans IT formats"), audioRow, ycc444Row, ycc422Row, nativeCountRow}};
constexpr Row noFlagsRow = reservedAt(3, 7, 0, "reserved");

void checkHead(const Scope& header, unsigned revision, unsigned offset) {
    if (revision == 0 || revision > dataBlockRevision) {
        header.tell(Severity::Warning, "cta.revision", 1, "revision",
                    "The revision of the CTA-861 extension is " + std::to_string(revision) +
                        " where 1 to 3 are in use, so that readers may pass over the block; set it to 3.");
    }
    if (offset > 0 && offset < firstByte) {
        header.tell(Severity::Error, "cta.timing_offset_low", 2, "timing_offset",
                    "The timing offset " + std::to_string(offset) +
                        " points into the header, so that readers refuse the block; let it point behind the last data "
                        "block, or set it to 0 if neither data blocks nor timings follow.");
    } else if (offset > lastEnd) {
        header.tell(Severity::Error, "cta.timing_offset_high", 2, "timing_offset",
                    "The timing offset " + std::to_string(offset) +
                        " points past the end of the block, so that readers refuse it; let it point behind the last "
                        "data block, at most to 127.");
    }
}

/// The timings from `offset` on, and what follows them. Tells how many there are.
std::size_t readTimings(const Scope& block, std::size_t offset, std::size_t native) {
    std::size_t count = 0;
    for (; offset + detailedTimingSize <= lastEnd && block.word(offset) != 0; offset += detailedTimingSize) {
        ++count;
        readDetailedTiming(block.inner(offset, numbered("detailed", count), "CTA-861-H, 7.3.3"), count <= native);
    }
    readPadding(block, offset, "cta.padding_not_zero", "the last detailed timing");
    return count;
}

std::size_t timingsOfBlock0(const Image& image) {
    std::size_t count = 0;
    for (std::size_t number = 0; number < slotCount; ++number) {
        count += isTimingSlot(image, number) ? 1U : 0U;
    }
    return count;
}

/// What an extension starts from, after those before it.
CtaState stateAfter(const CtaExtensions& before, const Image& image) {
    CtaState state{.limit = "the timing offset"};
    if (before.empty()) {
        state.timings = timingsOfBlock0(image);
        return state;
    }
    const CtaState& last = before.back().state;
    state.timings = last.timings;
    state.earlierKinds = last.earlierKinds;
    for (const auto& [kind, count] : last.kinds) {
        state.earlierKinds[kind] += count;
    }
    return state;
}

void readBody(const Scope& block, const Scope& header, unsigned revision, CtaExtensions& before) {
    const std::size_t offset = block.byte(extensionCells::timingOffset);
    if (offset > 0 && offset < firstByte) {
        block.addBytes(firstByte, lastEnd, "bytes", "Bytes without a place for timings");
        return;
    }
    CtaState state = stateAfter(before, block.reading().image);
    state.flags = revision >= flagRevision ? block.byte(extensionCells::support) : 0;
    const std::size_t dataEnd = offset == 0 ? firstByte : std::min<std::size_t>(offset, lastEnd);
    if (revision < dataBlockRevision) {
        block.addBytes(firstByte, dataEnd, "reserved", "Reserved", Kind::Reserved);
    } else {
        readDataBlocks(block, firstByte, dataEnd, state);
    }
    const std::size_t native = revision >= flagRevision ? header.raw(nativeCountRow.parts) : 0;
    if (offset == 0) {
        readPadding(block, firstByte, "cta.padding_not_zero", "the header, with no offset of timings,");
    } else {
        state.timings += readTimings(block, dataEnd, native > state.timings ? native - state.timings : 0);
    }
    before.push_back({block, std::move(state)});
}

} // namespace

void readCta(const Scope& block, CtaExtensions& before) {
    const Scope header = block.inner(0, "header");
    const unsigned revision = block.byte(extensionCells::version);
    const unsigned offset = block.byte(extensionCells::timingOffset);
    header.add(headRows);
    if (revision >= flagRevision) {
        header.add(flagRows);
    } else {
        header.add(noFlagsRow);
    }
    checkHead(header, revision, offset);
    readBody(block, header, revision, before);
}

} // namespace wb::fields
