#include "report/extension_report.h"

#include <array>

#include "core/base/extension_tags.h"
#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

constexpr int firstEntry = 30;
constexpr int titleEntry = 39;
constexpr int blockEntry = 42;
constexpr int typeEntry = 43;
constexpr int dumpEntry = 45;
constexpr int bodyEntry = 63;
constexpr std::array<int, 3> ruleEntries = {40, 41, 61};
constexpr std::array<int, 2> emptyEntries = {44, 62};

// The data blocks behind the video block; each of these is moved on by the length of that block.
constexpr int audioEntry = 67;
constexpr int speakerEntry = 71;
constexpr int speakerEntryAfterLongAudio = 74;
constexpr int vendorEntry = 73;
constexpr int longVendorEntry = 76;

constexpr std::string_view repeatedBlockTag = "00";

/// A kind of extension block, by the text of its first cell.
struct BlockKind {
    std::string_view tag;
    std::string_view title; ///< empty: by the version
    std::string_view type;
    std::string_view inMap; ///< what a block map says of a block of this kind; empty: nothing
};

constexpr std::array<BlockKind, 8> blockKinds = {{
    {ceaTagText, "", "CEA EDID Timing Extension", "a CEA Timing Extension Block"},
    {blockMapTagText, "EDID Block Map Extension", "EDID Block Map Extension", "a Block Map Extension Block"},
    {"01", "EDID LCD Timings Extension", "EDID LCD Timings Extension", "a LCD Timings Extension Block"},
    {"20", "EDID 2.0 Extension", "EDID 2.0 Extension", "an EDID 2.0 Extension Block"},
    {"30", "EDID Color Information Type 0 Extension", "EDID Color Information Type 0 Extension",
     "a Color Information Type 0 Extension Block"},
    {"40", "EDID DI-EXT Extension", "EDID DI-EXT Extension", "a DI-EXT Extension Block"},
    {"FF", "EDID Extension Defined by Manufacturer", "EDID Extension Defined by Manufacturer",
     "an Extension Block Defined by Manufacturer"},
    {repeatedBlockTag, "Repeating Block 0 EDID", "Illegal Block 0 EDID", ""},
}};

/// A version of the CEA-861 extension (CEA-861-D, section 7.5), by the text that its screen shows.
struct VersionTitle {
    std::string_view version;
    std::string_view title;
};

constexpr auto versionTitles = std::to_array<VersionTitle>({
    {"1", "EDID CEA-861 Timing Extension Version 1"},
    {"2", "EDID CEA-861A Timing Extension Version 2"},
    {"3", "EDID CEA-861B Timing Extension Version 3"},
});

const BlockKind* kindOf(std::string_view tag) {
    for (const BlockKind& kind : blockKinds) {
        if (kind.tag == tag) {
            return &kind;
        }
    }
    return nullptr;
}

/// Between the place of one cell, or that of several, and the words.
constexpr std::string_view placeGap = "       ";
constexpr std::string_view placesGap = "    ";

/// Puts the place of a cell and the words, without and with a line end.
void putAtPlace(std::string& entry, int cell, std::string_view words) {
    join(entry, {"(", std::to_string(cell), ")", words});
}
void putPlaceLine(std::string& entry, int cell, Texts words) {
    join(entry, {"(", std::to_string(cell), ")"});
    addLine(entry, words);
}
void putPlacesLine(std::string& entry, int first, int last, Texts words) {
    join(entry, {"(", std::to_string(first), "-", std::to_string(last), ")"});
    addLine(entry, words);
}

/// Empty for a version that is none of them.
std::string_view versionTitle(FrmCeaExt& screen) {
    for (const VersionTitle& known : versionTitles) {
        if (known.version == screen.VerRev.text()) {
            return known.title;
        }
    }
    return {};
}

void putBlockHead(Workbench& workbench, TextArray& lines, const BlockKind* kind) {
    FrmCeaExt& screen = workbench.frmCEA_EXT();
    putHead(workbench, lines, firstEntry);
    for (const int entry : ruleEntries) {
        lines(entry) = ruleLine();
    }
    for (const int entry : emptyEntries) {
        lines(entry) = crLf;
    }
    putLine(lines(blockEntry), {"EDID Block 1, Bytes 128-255"});
    if (kind != nullptr) {
        putCentred(lines(titleEntry), kind->title.empty() ? versionTitle(screen) : kind->title);
        putLine(lines(typeEntry), {"Block Type: ", kind->type});
    }
    putDump(screen, lines, dumpEntry);
}

/// Puts what a block map tells of the kind of block `block`.
void putMapLine(std::string& entry, const BlockKind* kind, int block) {
    if (kind == nullptr || kind->inMap.empty()) {
        entry.clear();
        return;
    }
    putPlaceLine(entry, block, {"     Block ", std::to_string(block), " is ", kind->inMap});
}

void putBlockMap(FrmCeaExt& screen, TextArray& lines) {
    putMapLine(lines(bodyEntry), kindOf(screen.txtEdit(1).text()), 1);
    putMapLine(lines(bodyEntry + 1), kindOf(screen.txtEdit(2).text()), 2);
}

void putCeaHead(Workbench& workbench, TextArray& lines) {
    putPlaceLine(lines(bodyEntry), extensionCells::timingOffset, {workbench.frmCEA_EXT().lbEDID(5).caption()});
    putPlaceLine(lines(bodyEntry + 1), extensionCells::support, {workbench.DTVSupportText});
    if (workbench.VideoBlockStart == 0) {
        return;
    }
    putAtPlace(lines(bodyEntry + 2), extensionCells::dataBlocks, workbench.VideoTagText);
    for (int i = 1; i <= workbench.VideoBlockLength; ++i) {
        putPlaceLine(lines(bodyEntry + 3 + i), extensionCells::dataBlocks + i, {placeGap, workbench.ShortVideoText(i)});
    }
}

/// The three lines of an audio descriptor, its first byte at `cell`.
struct AudioTexts {
    const std::string& kind;
    const std::string& channels;
    const std::string& format;
    const std::string& frequencies;
    const std::string& rate;
};

void putAudioDescriptor(TextArray& lines, int entry, int cell, const AudioTexts& texts) {
    putPlaceLine(lines(entry), cell, {placeGap, texts.kind, ", ", texts.channels, ", ", texts.format});
    putPlaceLine(lines(entry + 1), cell + 1, {placeGap, "Sampling Frequency: ", texts.frequencies});
    putPlaceLine(lines(entry + 2), cell + 2, {placeGap, texts.rate});
}

void putAudio(const Workbench& workbench, TextArray& lines, int entry) {
    putAtPlace(lines(entry), workbench.AudioBlockStart, workbench.AudioTagText);
    putAudioDescriptor(lines, entry + 1, workbench.AudioBlockStart + 1,
                       {.kind = workbench.AudioKindText,
                        .channels = workbench.AudioChannelsText,
                        .format = workbench.AudioFormatText,
                        .frequencies = workbench.SampFreqText,
                        .rate = workbench.BitRateText});
    if (workbench.AudioBlockLength >= longDataBlock && workbench.AudioDescriptorCount >= 2) {
        putAudioDescriptor(lines, entry + 4, workbench.LastAudioDescriptor,
                           {.kind = workbench.LastAudioKindText,
                            .channels = workbench.LastAudioChannelsText,
                            .format = workbench.LastAudioFormatText,
                            .frequencies = workbench.LastSampFreqText,
                            .rate = workbench.LastBitRateText});
    }
}

void putSpeakers(const Workbench& workbench, TextArray& lines, int entry) {
    const int start = workbench.SpeakerBlockStart;
    putAtPlace(lines(entry), start, workbench.SpeakerTagText);
    putPlacesLine(lines(entry + 1), start + 1, start + workbench.SpeakerBlockLength,
                  {placesGap, workbench.SpeakerText});
}

/// `end` is the last cell of the vendor data.
void putVendorLines(const Workbench& workbench, TextArray& lines, int entry, int end) {
    const int start = workbench.VendorBlockStart;
    putAtPlace(lines(entry), start, workbench.VendorTagText);
    putPlacesLine(lines(entry + 1), start + 1, start + 3, {placesGap, workbench.VendorIDText});
    putPlacesLine(lines(entry + 2), start + 4, end, {placesGap, workbench.VendorDataText});
}

/// A short vendor block stands where audio and speaker lines may be, and wins.
void putVendor(const Workbench& workbench, TextArray& lines, int videoLines) {
    const int start = workbench.VendorBlockStart;
    if (workbench.VendorBlockLength >= longDataBlock) {
        const int entry = videoLines + longVendorEntry;
        putVendorLines(workbench, lines, entry, start + 5);
        putPlaceLine(lines(entry + 3), start + 6, {placeGap, "VSDB Extension: ", workbench.VSDBExtText});
    } else {
        putVendorLines(workbench, lines, videoLines + vendorEntry, start + workbench.VendorBlockLength);
    }
}

void putDataBlocks(const Workbench& workbench, TextArray& lines) {
    const int videoLines = workbench.VideoBlockLength;
    if (workbench.AudioBlockStart != 0) {
        putAudio(workbench, lines, videoLines + audioEntry);
    }
    if (workbench.SpeakerBlockStart != 0) {
        const int entry = workbench.AudioBlockLength >= longDataBlock ? speakerEntryAfterLongAudio : speakerEntry;
        putSpeakers(workbench, lines, videoLines + entry);
    }
    if (workbench.VendorBlockStart != 0) {
        putVendor(workbench, lines, videoLines);
    }
}

void moveOn(std::int16_t& entry) {
    entry = int16From(entry + 1);
}

constexpr int entriesOfTiming = 3;

/// The running entry is a cell number of the block, and stays moved on.
void putTimings(Workbench& workbench, TextArray& lines) {
    std::int16_t& entry = workbench.ExtDtdStart;
    moveOn(entry);
    for (int i = 0; i <= workbench.ExtDtdSlotCount; ++i) {
        const std::string& text = workbench.ExtDetailedBlockText(i);
        if (text.empty()) {
            continue;
        }
        lines(entry) = ruleLine();
        moveOn(entry);
        lines(entry) = crLf;
        moveOn(entry);
        const int base = timingOffset(workbench) + i * detailedBlockSize;
        putPlacesLine(lines(entry), base, base + detailedBlockSize - 1,
                      {" Detailed Timing / Descriptor Block ", std::to_string(i + 1), ":", crLf, text});
        moveOn(entry);
        lines(entry) = crLf;
    }
}

/// The check sum line is that of block 0.
void putEnd(const Workbench& workbench, TextArray& lines) {
    const int entry = workbench.ExtDtdStart;
    lines(entry) = crLf;
    const int base = timingOffset(workbench) + workbench.ExtDtdSlotCount * detailedBlockSize;
    putPlacesLine(lines(entry + 1), base, checksumCell - 1, {" No Data:"});
    join(lines(entry + 2), {placeTag(checksumCell), "  ", workbench.Block0ChecksumText});
    lines(entry + 3) = endOfReport;
}

} // namespace

void layOutExtensionReport(Workbench& workbench) {
    TextArray& lines = workbench.ReportExtLines;
    lines.create(reportEntries);
    FrmCeaExt& screen = workbench.frmCEA_EXT();
    const std::string tag = screen.txtEdit(extensionCells::tag).text();
    putBlockHead(workbench, lines, kindOf(tag));
    if (tag == repeatedBlockTag) {
        return;
    }
    if (tag == blockMapTagText) {
        putBlockMap(screen, lines);
    } else if (tag == ceaTagText) {
        putCeaHead(workbench, lines);
    }
    putDataBlocks(workbench, lines);
    putTimings(workbench, lines);
    putEnd(workbench, lines);
}

void BuildExtensionReport(Workbench& workbench) {
    trapped(workbench, [&] { layOutExtensionReport(workbench); });
}

void skipExtensionReports(Workbench& workbench, int builds) {
    if (workbench.frmCEA_EXT().txtEdit(extensionCells::tag).text() == repeatedBlockTag) {
        return;
    }
    int entries = 1;
    for (int i = 0; i <= workbench.ExtDtdSlotCount; ++i) {
        entries += workbench.ExtDetailedBlockText(i).empty() ? 0 : entriesOfTiming;
    }
    workbench.ExtDtdStart = int16From(workbench.ExtDtdStart + builds * entries);
}

} // namespace wb::report
