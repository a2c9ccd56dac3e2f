#include <algorithm>

#include "fields/cta_data_blocks.h"

namespace wb::fields {

namespace {

std::string formatOf(unsigned code) {
    const VideoFormat* format = videoFormatOf(code);
    return std::to_string(code) + (format == nullptr ? " (reserved)" : " (" + formatText(*format) + ")");
}

void describeCode(const Scope&, std::uint64_t raw, Field& field) {
    field.text = formatOf(static_cast<unsigned>(raw));
}

constexpr Row codeRow = {.name = "code", .label = "Video code", .parts = {{0}}, .read = describeCode};
/// Codes 1 to 64 leave room for a flag.
constexpr Row shortCodeRow = {.name = "code", .label = "Video code", .parts = {{0, 6, 0}}, .read = describeCode};
constexpr Row nativeRow = flagAt(0, 7, "native", "Native");

constexpr unsigned lastFlaggedCode = 64;
constexpr unsigned nativeBit = 0x80;

/// The flag has a place beside the codes 1 to 64 alone; in all other descriptors bit 7 belongs to the code.
bool hasNativeFlag(unsigned descriptor) {
    const unsigned code = videoCodeOf(descriptor);
    return code >= 1 && code <= lastFlaggedCode;
}

/// The number of the field that was read last.
std::size_t lastField(const Scope& scope) {
    return scope.reading().fields.size() - 1;
}

void checkCode(const Scope& scope, std::uint8_t code, const std::vector<ReadVideoCode>& before) {
    if (videoFormatOf(code) == nullptr) {
        scope.tell(Severity::Warning, "cta.video_code_reserved", 0, "code",
                   "Video code " + std::to_string(code) +
                       " is reserved, so that readers pass over it; take the short video descriptor out.");
    } else if (hasCode(before, code)) {
        scope.tell(Severity::Warning, "cta.video_code_repeated", 0, "code",
                   "Video code " + std::to_string(code) +
                       " stands here a second time, which tells nothing new and takes the place of another format; "
                       "take one of the two out.");
    }
}

/// A short video descriptor; its code goes to the end of `codes`.
void readDescriptor(const Scope& scope, std::vector<ReadVideoCode>& codes) {
    const unsigned descriptor = scope.byte(0);
    const auto code = static_cast<std::uint8_t>(videoCodeOf(descriptor));
    const bool flagged = hasNativeFlag(descriptor);
    if (flagged) {
        scope.add(nativeRow);
    }
    scope.add(flagged ? shortCodeRow : codeRow);
    checkCode(scope, code, codes);
    if (const VideoFormat* format = videoFormatOf(code)) {
        scope.summary().modes.push_back(modeOf(*format, flagged && (descriptor & nativeBit) != 0));
    }
    codes.push_back({code, lastField(scope)});
}

void readDescriptors(const DataBlock& block, std::string_view list, std::vector<ReadVideoCode>& codes) {
    for (std::size_t offset = block.begin; offset < block.end; ++offset) {
        readDescriptor(block.extension.inner(offset, numbered(list, codes.size() + 1), block.content.clause()), codes);
    }
}

/// What a short video reference means. CTA-861-H, 7.5.12.
std::string referenceText(unsigned reference) {
    struct Range {
        unsigned first;
        unsigned last;
        std::string_view words;
    };
    constexpr auto ranges = std::to_array<Range>({{129, 144, "detailed timing "},
                                                  {145, 160, "DisplayID timing "},
                                                  {161, 175, "format of the video format data block "}});
    for (const Range& range : ranges) {
        if (reference >= range.first && reference <= range.last) {
            return std::string(range.words) + std::to_string(reference - range.first + 1);
        }
    }
    return reference == 254 ? "format of the type VIII timing data block" : formatOf(reference);
}

void describeReference(const Scope&, std::uint64_t raw, Field& field) {
    field.text = referenceText(static_cast<unsigned>(raw));
}

constexpr Row referenceRow = {
    .name = "reference", .label = "Preferred format", .parts = {{0}}, .read = describeReference};

} // namespace

bool hasCode(const std::vector<ReadVideoCode>& codes, std::uint8_t code) {
    return std::any_of(codes.begin(), codes.end(), [&](const ReadVideoCode& read) { return read.code == code; });
}

void readVideoBlock(const DataBlock& block) {
    readDescriptors(block, "video", block.state.videoCodes);
}

void readVideo420Block(const DataBlock& block) {
    readDescriptors(block, "video_420", block.state.videoCodes420);
}

void readCapabilityMap(const DataBlock& block) {
    for (std::size_t offset = block.begin; offset < block.end; ++offset) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            const std::size_t position = (offset - block.begin) * 8 + bit;
            const auto at = static_cast<std::uint8_t>(bit);
            const std::string name = numbered("video", position + 1);
            const Field& flag = block.content.add(flagAt(offset, at, name, "Video descriptor also in YCbCr 4:2:0"));
            if (std::get<bool>(flag.value) && position >= block.state.mapReach) {
                block.state.mapReach = position + 1;
                block.state.mapReachField = lastField(block.content);
            }
        }
    }
}

void readFormatPreference(const DataBlock& block) {
    for (std::size_t offset = block.begin; offset < block.end; ++offset) {
        block.extension.inner(offset, numbered("preference", ++block.state.preferences), block.content.clause())
            .add(referenceRow);
    }
}

} // namespace wb::fields
