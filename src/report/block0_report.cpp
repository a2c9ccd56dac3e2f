#include "report/block0_report.h"

#include <algorithm>
#include <array>

#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

/// Entries of the lines that are in none of the tables below.
enum Entry {
    HeadEntry = 0,
    VersionEntry = 9,
    ModelEntry = 10,
    BlockEntry = 13,
    CodeEntry = 14,
    DumpEntry = 16,
    VideoInputEntry = 44,
    FeaturesEntry = 51,
    DisplayTypeEntry = 52,
    ChromaXEntry = 55,
    ChromaYEntry = 56,
    Established1Entry = 59,
    Established2Entry = 62,
    ReservedEntry = 65,
    StandardTimingsEntry = 68,
};

struct FieldLine {
    int entry;
    std::string_view place;
    std::string_view words;
    std::string SharedVariables::*text;
};

constexpr std::array<FieldLine, 8> identityLines = {{
    {34, "(08-09)", "  ID Manufacturer Name ________________", &SharedVariables::IDManufacturerName},
    {35, "(11-10)", "  Product ID Code _____________________", &SharedVariables::ProductIDCode},
    {36, "(12-15)", "  Last 5 Digits of Serial Number ______", &SharedVariables::SerialLast5},
    {37, "(16)", "  Week of Manufacture _________________", &SharedVariables::ManufactureWeek},
    {38, "(17)", "  Year of Manufacture _________________", &SharedVariables::ManufactureYear},
    {39, "(10-17)", "  Complete Serial Number ______________", &SharedVariables::CompleteSerial},
    {40, "(18)", "  EDID Version Number _________________", &SharedVariables::EDIDVersionText},
    {41, "(19)", "  EDID Revision Number ________________", &SharedVariables::EDIDRevisionText},
}};

constexpr std::array<FieldLine, 3> sizeLines = {{
    {46, "(21)", "  Maximum Horizontal Image Size ________________", &SharedVariables::MaxHImageSizeText},
    {47, "(22)", "  Maximum Vertical Image Size __________________", &SharedVariables::MaxVImageSizeText},
    {48, "(23)", "  Display Gamma ________________________________", &SharedVariables::DisplayGammaText},
}};

struct HeadingLine {
    int entry;
    std::string_view place;
    std::string_view words;
};

constexpr std::array<HeadingLine, 7> headingLines = {{
    {43, "(20)", "  VIDEO INPUT DEFINITION:"},
    {50, "(24)", "  Power Management and Supported Feature(s):"},
    {54, "(25-34)", "  CHROMA INFO:"},
    {58, "(35)", "  ESTABLISHED TIMING I:"},
    {61, "(36)", "  ESTABLISHED TIMING II:"},
    {64, "(37)", "  Manufacturer's Reserved Timing:"},
    {67, "(38-53)", "  Standard Timing Identification:"},
}};

constexpr std::array<int, 3> ruleEntries = {11, 12, 32};
constexpr std::array<int, 11> emptyEntries = {15, 31, 33, 42, 45, 49, 53, 57, 60, 63, 66};

void putIndented(std::string& entry, std::string_view text) {
    putLine(entry, {blanks(reportIndent), text});
}

void putTitles(Workbench& workbench, TextArray& lines) {
    FrmEdid& screen = workbench.frmEDID();
    putCentred(lines(VersionEntry),
               joined({"EDID Version # ", workbench.EDIDVersionText, ",  Revision # ", workbench.EDIDRevisionText}));
    putCentred(lines(ModelEntry), joined({"Vantrel For: ", screen.txtBrand.text(), " ", screen.txtModel.text()}));
    putLine(lines(BlockEntry), {"EDID Block 0, Bytes 0-127"});
    putLine(lines(CodeEntry), {"128 BYTES OF EDID CODE:"});
}

void putLayout(TextArray& lines) {
    for (const int entry : ruleEntries) {
        lines(entry) = ruleLine();
    }
    for (const int entry : emptyEntries) {
        lines(entry) = crLf;
    }
    for (const HeadingLine& heading : headingLines) {
        putLine(lines(heading.entry), {padding(heading.place, placeWidth), heading.place, heading.words});
    }
}

void putFieldLines(Workbench& workbench, TextArray& lines) {
    for (const FieldLine& field : identityLines) {
        putLine(lines(field.entry),
                {padding(field.place, placeWidth), field.place, field.words, "=   ", workbench.*field.text});
    }
    for (const FieldLine& field : sizeLines) {
        putLine(lines(field.entry),
                {padding(field.place, placeWidth), field.place, field.words, "=      ", workbench.*field.text});
    }
}

void putDecodedTexts(Workbench& workbench, TextArray& lines) {
    const std::string& videoInput = workbench.VideoInputText;
    putLine(lines(VideoInputEntry), {blanks(reportIndent), videoInput, padding(videoInput, 10)});
    putIndented(lines(FeaturesEntry), workbench.PowerFeatureText);
    putLine(lines(DisplayTypeEntry), {blanks(reportIndent), "Display Type = ", workbench.DisplayTypeText});
    putIndented(lines(ChromaXEntry), workbench.ChromaText1);
    putIndented(lines(ChromaYEntry), workbench.ChromaText2);
    putLine(lines(Established1Entry), {workbench.EstablishedTiming1Text});
    putLine(lines(Established2Entry), {workbench.EstablishedTiming2Text});
    if (workbench.ReservedTimingText.empty()) {
        putIndented(lines(ReservedEntry), "  None Specified");
    } else {
        putLine(lines(ReservedEntry), {workbench.ReservedTimingText});
    }
}

/// Gives the entry after the last line. Each line lies one entry further from the one before than that from its own
/// predecessor; the entries between stay unset and do not show.
int putStandardTimings(Workbench& workbench, TextArray& lines) {
    int entry = StandardTimingsEntry;
    for (int i = 0; i < workbench.StandardTimingText.size(); ++i) {
        entry += i;
        putIndented(lines(entry), workbench.StandardTimingText(i));
    }
    return entry + 1;
}

constexpr int entriesOfBlock = 3;
constexpr int entriesOfEnd = 4;

/// Gives the entry after the last block, which holds an empty line that the next part overwrites.
int putDetailedBlocks(Workbench& workbench, TextArray& lines, int entry) {
    for (int block = 0; block < detailedBlockCount; ++block) {
        const std::string& text = workbench.DetailedBlockText(block);
        if (text.empty()) {
            continue;
        }
        const int base = detailedBlockBase(block);
        lines(entry++) = ruleLine();
        lines(entry++) = crLf;
        putLine(lines(entry++), {"(", placeRange(base, base + detailedBlockSize - 1),
                                 ") Detailed Timing / Descriptor Block ", std::to_string(block + 1), ":", crLf, text});
        lines(entry) = crLf;
    }
    return entry;
}

void putEnd(Workbench& workbench, TextArray& lines, int entry) {
    lines(entry) = crLf;
    join(lines(entry + 1), {placeTag(extensionCountCell), "  ", workbench.ExtensionFlagText});
    join(lines(entry + 2), {placeTag(checksumCell), "  ", workbench.Block0ChecksumText});
    lines(entry + 3) = endOfReport;
}

} // namespace

bool fitsBlock0Report(const Workbench& workbench) {
    const int timings = workbench.StandardTimingText.size();
    if (timings > reportEntries || workbench.DetailedBlockText.size() < detailedBlockCount) {
        return false;
    }
    int entry = StandardTimingsEntry + timings * std::max(timings - 1, 0) / 2 + 1;
    for (int block = 0; block < detailedBlockCount; ++block) {
        entry += workbench.DetailedBlockText(block).empty() ? 0 : entriesOfBlock;
    }
    return entry + entriesOfEnd <= reportEntries;
}

void layOutBlock0Report(Workbench& workbench) {
    TextArray& lines = workbench.ReportBlock0Lines;
    lines.create(reportEntries);
    putHead(workbench, lines, HeadEntry);
    putTitles(workbench, lines);
    putLayout(lines);
    putDump(workbench.frmEDID(), lines, DumpEntry);
    putFieldLines(workbench, lines);
    putDecodedTexts(workbench, lines);
    const int blocks = putStandardTimings(workbench, lines);
    const int end = putDetailedBlocks(workbench, lines, blocks);
    putEnd(workbench, lines, end);
}

void BuildBlock0Report(Workbench& workbench) {
    trapped(workbench, [&] { layOutBlock0Report(workbench); });
}

} // namespace wb::report
