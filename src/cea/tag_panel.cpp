#include "cea/tag_panel.h"

#include <array>

#include "cea/data_blocks.h"
#include "cea/digits.h"
#include "cea/handlers.h"
#include "cea/location.h"
#include "cea/panels.h"
#include "cea/procedure.h"
#include "cea/short_audio.h"
#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/base/text.h"

namespace wb::cea {

namespace {

struct TagName {
    std::string_view digits;
    std::string_view name;
};

/// By the option of the tag.
constexpr auto tagNames = std::to_array<TagName>({{tag::reserved, "Reserved"},
                                                  {tag::audio, "Audio Data Block"},
                                                  {tag::video, "Video Data Block/Short Video Descriptors"},
                                                  {tag::vendor, "Vendor Specific Data Block"},
                                                  {tag::speaker, "Speaker Data Block"}});

/// A kind of block: where the shared variables keep it, and what a new length in its header, at row R of the list, does
/// besides, for which each kind has rules of its own.
struct Block {
    std::string_view kind;
    std::int16_t SharedVariables::*start;
    std::int16_t SharedVariables::*length;
    std::string SharedVariables::*text;
    int colouredFrom;                    ///< counted from the start
    bool colouredByRow;                  ///< as far as R, not as the stored length
    std::int16_t SharedVariables::*next; ///< start that follows where it is not known
    bool nextFromStart;                  ///< counted from behind the start, not from where the blocks begin
};

constexpr Block videoBlock = {.kind = "ShortVideo",
                              .start = &SharedVariables::VideoBlockStart,
                              .length = &SharedVariables::VideoBlockLength,
                              .text = &SharedVariables::VideoTagText,
                              .colouredFrom = 1,
                              .colouredByRow = true,
                              .next = &SharedVariables::AudioBlockStart,
                              .nextFromStart = false};
constexpr Block audioBlock = {.kind = "ShortAudio",
                              .start = &SharedVariables::AudioBlockStart,
                              .length = &SharedVariables::AudioBlockLength,
                              .text = &SharedVariables::AudioTagText,
                              .colouredFrom = 0,
                              .colouredByRow = true,
                              .next = &SharedVariables::SpeakerBlockStart,
                              .nextFromStart = true};
constexpr Block speakerBlock = {.kind = "ShortSpeaker",
                                .start = &SharedVariables::SpeakerBlockStart,
                                .length = &SharedVariables::SpeakerBlockLength,
                                .text = &SharedVariables::SpeakerTagText,
                                .colouredFrom = 0,
                                .colouredByRow = false,
                                .next = &SharedVariables::VendorBlockStart,
                                .nextFromStart = true};
constexpr Block vendorBlock = {.kind = "ShortVendor",
                               .start = &SharedVariables::VendorBlockStart,
                               .length = &SharedVariables::VendorBlockLength,
                               .text = &SharedVariables::VendorTagText,
                               .colouredFrom = 0,
                               .colouredByRow = false,
                               .next = nullptr,
                               .nextFromStart = true};

/// The block whose header stands in the panel, or null before any.
const Block* shownBlock(const Workbench& workbench) {
    for (const Block* block : {&videoBlock, &audioBlock, &speakerBlock, &vendorBlock}) {
        if (block->kind == workbench.DataBlockKind) {
            return block;
        }
    }
    return nullptr;
}

/// Selects the option of the header's tag; gives the name of the tag, empty for one without an option.
std::string_view decodeTag(const Procedure& run, int header) {
    const std::string_view digits = tagDigits(run.readText(header));
    for (int i = 0; i < static_cast<int>(tagNames.size()); ++i) {
        const TagName& known = tagNames[static_cast<std::size_t>(i)];
        if (known.digits == digits) {
            run.screen.optButTag(i).setValue(flagTrue);
            return known.name;
        }
    }
    return {};
}

/// One decoder for the four kinds. `ending` closes the text, `further` runs before the text is made.
void decodeHeader(Workbench& workbench, const Block& block, std::string_view ending,
                  void (*further)(const Procedure&) = nullptr) {
    decoder(workbench, [&](const Procedure& run) {
        const int header = run.workbench.*block.start;
        run.screen.optButTag.deselect();
        const std::string_view name = decodeTag(run, header);
        const int length = dataLength(run.workbench, run.readText(header));
        run.screen.TagCBox.setValue(length);
        run.workbench.*block.length = int16From(length);
        run.colour(location(header, 1), location(header, length), CellColour::Group);
        if (further != nullptr) {
            further(run);
        }
        constexpr std::string_view words = "Number of Data Byte to Follow: ";
        constexpr int width = 34; // of the words and the number
        const std::string number = std::to_string(length);
        join(run.workbench.*block.text,
             {name, ", ", words, number, padding(number, width - static_cast<int>(words.size())), ending});
    });
}

void decodeAudioKind(const Procedure& run) {
    run.screen.AudioFormat.deselect();
    const bool linear = isLinear(run.readText(firstAudioCell(run.workbench, 1)));
    run.screen.AudioFormat(linear ? 0 : 1).setValue(flagTrue);
    run.workbench.AudioKindText = linear ? "Uncompressed" : "Compressed";
}

/// The dispatch that this causes decodes the header as it still stands.
void focusOnHeader(const Procedure& run, const Block& block) {
    run.statement([&] { run.workbench.focus.moveTo(run.cell(run.workbench.*block.start)); });
}

void followUp(const Procedure& run, const Block& block, int row) {
    const int start = run.workbench.*block.start;
    const int last = block.colouredByRow ? row : run.workbench.*block.length;
    run.colour(location(start, block.colouredFrom), location(start, last), CellColour::Group);
    if (block.next != nullptr && run.workbench.*block.next == 0) {
        run.workbench.*block.next = int16From((block.nextFromStart ? start + 1 : extensionCells::dataBlocks) + row);
    }
}

} // namespace

void BuildVideoTag(Workbench& workbench) {
    decodeHeader(workbench, videoBlock, crLf);
}

void BuildAudioTag(Workbench& workbench) {
    decodeHeader(workbench, audioBlock, ", \r\n", decodeAudioKind);
}

void BuildSpeakerTag(Workbench& workbench) {
    decodeHeader(workbench, speakerBlock, crLf);
}

void BuildVendorTag(Workbench& workbench) {
    decodeHeader(workbench, vendorBlock, crLf);
}

void optButTag_Click(Workbench& workbench, int index) {
    panelHandler(workbench, [&](const Procedure& run) {
        const Block* block = shownBlock(run.workbench);
        if (block == nullptr) {
            return;
        }
        if (block == &audioBlock) {
            run.screen.Hints(panels::videoDescriptor).setVisible(false);
        }
        focusOnHeader(run, *block);
        const int header = run.workbench.*block->start;
        const std::string kept = rightPart(HexToBinaryText(run.readText(header)), 5);
        const std::string digits = std::string(tagNames[static_cast<std::size_t>(index)].digits) + kept;
        run.write(header, ByteToHex2(binaryNumber(run.workbench, digits)));
    });
}

void TagCBox_Click(Workbench& workbench, int /*index*/) {
    panelHandler(workbench, [](const Procedure& run) {
        const Block* block = shownBlock(run.workbench);
        if (block == nullptr) {
            return;
        }
        // The dispatch of the header puts the old length back into the list.
        const int row = shownRow(run.screen.TagCBox);
        focusOnHeader(run, *block);
        const int header = run.workbench.*block->start;
        const std::string digits = joined({tagDigits(run.readText(header)), row < 0 ? "" : binaryDigits(row, 5)});
        constexpr int videoHeader = extensionCells::dataBlocks; // wherever the video block starts
        run.write(block == &videoBlock ? videoHeader : header,
                  hexadecimal16(int16From(binaryNumber(run.workbench, digits))));
        followUp(run, *block, row < 0 ? 0 : row);
    });
}

} // namespace wb::cea
