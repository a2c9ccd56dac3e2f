#include "script/properties.h"

#include <array>

#include "core/base/text.h"
#include "script/script_error.h"

namespace wb::script {

namespace {

std::string truthText(bool value) {
    return value ? "True" : "False";
}

std::string colourText(CellColour colour) {
    switch (colour) {
        case CellColour::Group:
            return "group";
        case CellColour::Field:
            return "field";
        case CellColour::Window:
            break;
    }
    return "window";
}

struct Property {
    std::string_view name;
    std::string (*read)(const Control&);
};

constexpr std::array<Property, 17> properties = {{
    {"Text", [](const Control& c) { return quoted(c.text()); }},
    {"Caption", [](const Control& c) { return quoted(c.caption()); }},
    {"Value", [](const Control& c) { return std::to_string(c.value()); }},
    {"Visible", [](const Control& c) { return truthText(c.visible()); }},
    {"Enabled", [](const Control& c) { return truthText(c.enabled()); }},
    {"Locked", [](const Control& c) { return truthText(c.locked()); }},
    {"BackColor", [](const Control& c) { return colourText(c.backColor()); }},
    {"FontBold", [](const Control& c) { return truthText(c.fontBold()); }},
    {"MaxLength", [](const Control& c) { return std::to_string(c.maxLength()); }},
    {"Tag", [](const Control& c) { return std::to_string(c.tag()); }},
    {"SelStart", [](const Control& c) { return std::to_string(c.selStart()); }},
    {"SelLength", [](const Control& c) { return std::to_string(c.selLength()); }},
    {"ListCount", [](const Control& c) { return std::to_string(c.rows().size()); }},
    {"Left", [](const Control& c) { return std::to_string(c.bounds().left); }},
    {"Top", [](const Control& c) { return std::to_string(c.bounds().top); }},
    {"Width", [](const Control& c) { return std::to_string(c.bounds().width); }},
    {"Height", [](const Control& c) { return std::to_string(c.bounds().height); }},
}};
constexpr std::string_view listName = "List";

void printRows(const Session& session, const Control& control, int only) {
    const int count = static_cast<int>(control.rows().size());
    if (only >= count) {
        throw ScriptError("'" + control.fullName() + "' has no row " + std::to_string(only));
    }
    const int first = only == Control::noIndex ? 0 : only;
    const int end = only == Control::noIndex ? count : only + 1;
    for (int row = first; row < end; ++row) {
        printValue(session, control.fullName() + ".List(" + std::to_string(row) + ")",
                   quoted(control.rows()[static_cast<std::size_t>(row)]));
    }
}

[[noreturn]] void failUnknown(const NamePart& property) {
    throw ScriptError("unknown property '" + property.name + "'");
}

} // namespace

void printProperty(const Session& session, const Control& control, const NamePart& property) {
    if (property.name == listName) {
        printRows(session, control, property.index);
        return;
    }
    for (const Property& known : properties) {
        if (known.name == property.name && property.index == Control::noIndex) {
            printValue(session, control.fullName() + '.' + property.name, known.read(control));
            return;
        }
    }
    failUnknown(property);
}

void printProperty(const Session& session, const Screen& screen, const NamePart& property) {
    const std::string name = std::string(screen.name()) + '.' + property.name;
    if (property.index == Control::noIndex && property.name == "Caption") {
        printValue(session, name, quoted(screen.caption()));
    } else if (property.index == Control::noIndex && property.name == "Visible") {
        printValue(session, name, truthText(screen.shown()));
    } else {
        failUnknown(property);
    }
}

} // namespace wb::script
