#include <algorithm>
#include <array>

#include "fields/descriptors.h"

namespace wb::fields {

namespace {

constexpr std::size_t textStart = 5;
constexpr std::size_t textLength = 13;
constexpr std::uint8_t endMark = 0x0A;
constexpr std::uint8_t blank = 0x20;

constexpr Row textRow(std::string_view name, std::string_view label, bool identifies = false) {
    return {.name = name,
            .label = label,
            .parts = {{textStart}},
            .kind = Kind::Text,
            .length = textLength,
            .identifies = identifies};
}

constexpr Row nameRow = textRow("name", "Product name");
constexpr Row serialRow = textRow("serial_text", "Product serial number", true);
constexpr Row plainRow = textRow("text", "Text");

const Row& rowOf(std::uint8_t tag) {
    switch (tag) {
        case nameTag:
            return nameRow;
        case serialTextTag:
            return serialRow;
        default:
            return plainRow;
    }
}

/// The first one of an image that is not empty is the one that counts.
void summarize(Summary& summary, std::uint8_t tag, const std::string& text) {
    if (text.empty()) {
        return;
    }
    if (tag == nameTag && !summary.name) {
        summary.name = text;
    } else if (tag == serialTextTag && !summary.serialText) {
        summary.serialText = text;
    }
}

/// The characters before the end mark.
void checkCharacters(const Scope& slot, std::string_view name, std::span<const std::uint8_t> characters) {
    const auto offsetOf = [&](auto found) { return textStart + static_cast<std::size_t>(found - characters.begin()); };
    const auto control = std::find_if(characters.begin(), characters.end(),
                                      [](unsigned character) { return character < blank || character == 0x7F; });
    if (control != characters.end()) {
        slot.tell(
            Severity::Warning, "text.control_character", offsetOf(control), name,
            "The text has the control character " + hexNumber(*control, 8) +
                "h, which software shows as it pleases; enter a printable one, or 0A and blanks to end the text.");
    }
    const auto foreign =
        std::find_if(characters.begin(), characters.end(), [](unsigned character) { return character > 0x7F; });
    if (foreign != characters.end()) {
        slot.tell(Severity::Warning, "text.not_ascii", offsetOf(foreign), name,
                  "The text has the character " + hexNumber(*foreign, 8) +
                      "h, which is not ASCII and is read here as of code page 1252, elsewhere as something else; enter "
                      "one of ASCII.");
    }
    if (std::all_of(characters.begin(), characters.end(), [](unsigned character) { return character == blank; })) {
        slot.tell(Severity::Note, "text.empty", textStart, name,
                  "The text is empty, so that software has nothing to show; enter one, or make the descriptor a dummy "
                  "(10h).");
    }
}

void checkText(const Scope& slot, std::string_view name) {
    const auto text = slot.bytes(textStart, textLength);
    const auto end = std::find(text.begin(), text.end(), endMark);
    const auto length = static_cast<std::size_t>(end - text.begin());
    checkCharacters(slot, name, text.first(length));
    if (end == text.end()) {
        if (text.back() == blank || text.back() == 0) {
            slot.tell(Severity::Warning, "text.no_end_mark", textStart + textLength - 1, name,
                      "The text is shorter than 13 characters and has no end mark, so that software takes its padding "
                      "for a part of it; put 0A behind the last character and blanks after that.");
        }
        return;
    }
    const auto padding = std::find_if(end + 1, text.end(), [](unsigned character) { return character != blank; });
    if (padding != text.end()) {
        slot.tell(Severity::Warning, "text.bad_padding", textStart + static_cast<std::size_t>(padding - text.begin()),
                  name,
                  "What follows the end mark of the text are not only blanks, which some software shows; set the rest "
                  "to 20.");
    }
}

} // namespace

void readTextDescriptor(const Scope& slot, int /*revision*/) {
    const std::uint8_t tag = slot.byte(3);
    const Row& row = rowOf(tag);
    summarize(slot.summary(), tag, std::get<std::string>(slot.add(row).value));
    checkText(slot, row.name);
}

} // namespace wb::fields
