#include "forms/outputs.h"

#include <algorithm>
#include <array>

#include "forms/lines.h"

namespace wb::forms {

namespace {

/// Names of connectors begin so (the kernel's drm_connector names and those of X servers).
constexpr std::array<std::string_view, 15> connectorKinds = {"HDMI", "DP",        "eDP",         "DVI", "VGA",
                                                             "LVDS", "DSI",       "DisplayPort", "DPI", "Virtual",
                                                             "TV",   "Composite", "SVIDEO",      "USB", "Component"};

bool isNameCharacter(char c) {
    return isWordCharacter(c) || c == '-' || c == '.';
}

/// Whether a word is the name of a connector: its kind, perhaps a letter for its variant, and a number at the end.
bool isConnector(std::string_view word) {
    if (word.empty() || !isDecimalDigit(word.back())) {
        return false;
    }
    return std::any_of(connectorKinds.begin(), connectorKinds.end(), [&](std::string_view kind) {
        return word.starts_with(kind) && word.size() > kind.size() &&
               (word[kind.size()] == '-' || isDecimalDigit(word[kind.size()]));
    });
}

/// The name of a folder of connectors, "card0-HDMI-A-1", without the card.
std::string_view withoutCard(std::string_view word) {
    const std::size_t dash = word.find('-');
    return word.starts_with("card") && dash != std::string_view::npos ? word.substr(dash + 1) : word;
}

std::string_view connectorIn(std::string_view line) {
    std::string_view last;
    for (std::size_t place = 0; place < line.size();) {
        std::size_t end = place;
        while (end < line.size() && isNameCharacter(line[end])) {
            ++end;
        }
        const std::string_view word = withoutCard(line.substr(place, end - place));
        if (isConnector(word)) {
            last = word;
        }
        place = end + 1;
    }
    return last;
}

} // namespace

std::string Outputs::before(std::size_t place) {
    for (;;) {
        const Line line = lineAt(text_, line_);
        if (line.next > place || line.next == line_) {
            break;
        }
        const std::string_view name = connectorIn(line.text);
        last_ = name.empty() ? last_ : name;
        line_ = line.next;
    }
    const std::string_view name = connectorIn(text_.substr(line_, place - line_));
    return std::string(name.empty() ? last_ : name);
}

} // namespace wb::forms
