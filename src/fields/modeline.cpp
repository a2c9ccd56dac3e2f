#include "fields/modeline.h"

#include "fields/words.h"

namespace wb::fields {

namespace {

void appendNumbers(std::string& text, const ModelineAxis& axis) {
    text += ' ';
    for (const int number : {axis.active, axis.syncStart, axis.syncEnd, axis.total}) {
        text += ' ';
        text += std::to_string(number);
    }
}

void appendSync(std::string& text, const ModelineAxis& axis, std::string_view name) {
    text += axis.positiveSync ? " +" : " -";
    text += name;
}

} // namespace

std::string modelineText(const Modeline& modeline) {
    std::string text = "Modeline \"" + modeline.name + "\"  ";
    text += decimalText(static_cast<double>(modeline.clockKilohertz) / 1000, modeline.clockKilohertz % 10 == 0 ? 2 : 3);
    appendNumbers(text, modeline.horizontal);
    appendNumbers(text, modeline.vertical);
    text += modeline.interlaced ? " interlace" : "";
    appendSync(text, modeline.horizontal, "hsync");
    appendSync(text, modeline.vertical, "vsync");
    return text;
}

} // namespace wb::fields
