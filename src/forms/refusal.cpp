#include "forms/refusal.h"

#include <algorithm>
#include <array>

#include "core/base/digits.h"
#include "core/base/image.h"
#include "core/base/text.h"
#include "forms/found.h"
#include "forms/lines.h"

namespace wb::forms {

namespace {

/// What an input without an image looks like: a text by words that stand in it, other files by those they begin with.
struct Look {
    std::string_view words;
    std::string_view name;
};

constexpr std::array<Look, 10> looks = {{{"edid-decode", "the output of edid-decode without its hexadecimal lines"},
                                         {" connected ", "xrandr output without data"},
                                         {" disconnected", "xrandr output without data"},
                                         {"DRM connector", "the output of a monitor's query without data"},
                                         {"Windows Registry Editor", "a registry export without an EDID"},
                                         {"REGEDIT4", "a registry export without an EDID"},
                                         {"<html", "a web page"},
                                         {"\x89PNG", "a picture"},
                                         {"PK\x03\x04", "a zip archive"},
                                         {"%PDF", "a PDF document"}}};

bool isText(std::string_view content) {
    return std::none_of(content.begin(), content.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\r' && c != '\n';
    });
}

bool isPair(std::string_view word) {
    if (hasHexPrefix(word)) {
        word.remove_prefix(2);
    }
    return word.size() % 2 == 0 && areHexDigits(word);
}

/// The first word that is no hexadecimal pair, with its line.
std::string firstOtherWord(std::string_view text) {
    constexpr std::size_t longestShown = 24;
    std::size_t number = 0;
    for (std::size_t next = 0; next < text.size();) {
        const Line line = lineAt(text, next);
        next = line.next;
        ++number;
        for (std::size_t place = 0; (place = line.text.find_first_not_of(" \t,", place)) != std::string_view::npos;) {
            const std::size_t end = std::min(line.text.find_first_of(" \t,", place), line.text.size());
            const std::string_view word = line.text.substr(place, end - place);
            if (!isPair(word)) {
                const std::string shown = quoted(word.substr(0, longestShown));
                return "line " + std::to_string(number) + ": '" + shown.substr(1, shown.size() - 2) +
                       (word.size() > longestShown ? "..." : "") + "' is no hexadecimal pair";
            }
            place = end;
        }
    }
    return {};
}

std::string lookOf(std::string_view content) {
    const bool text = isText(content);
    for (const Look& look : looks) {
        if (text ? content.find(look.words) != std::string_view::npos : content.starts_with(look.words)) {
            return "; looks like " + std::string(look.name);
        }
    }
    return {};
}

std::string hexOf(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        text += (text.empty() ? "" : " ") + ByteToHex2(static_cast<unsigned char>(byte));
    }
    return text;
}

} // namespace

std::string refusalOf(std::string_view content, std::string_view text) {
    if (!isText(content)) {
        if (content.size() < Image::blockSize) {
            return std::to_string(content.size()) + " bytes, and an image has 128 or more" + lookOf(content);
        }
        if (content.starts_with(imageHeader)) {
            return "is binary, which is not the form that was asked for";
        }
        return "begins with " + hexOf(content.substr(0, imageHeader.size())) + ", not with the header " +
               hexOf(imageHeader) + lookOf(content);
    }
    const std::string word = firstOtherWord(text);
    if (!word.empty()) {
        return word + lookOf(content);
    }
    const std::vector<Found> bare = readBareHex(text);
    return bare.empty() ? "fewer than the 256 hexadecimal digits of a block"
                        : "the hexadecimal bytes do not begin with the header " + hexOf(imageHeader);
}

} // namespace wb::forms
