#include "script/properties.h"

#include <array>

#include "core/base/text.h"
#include "script/control_names.h"
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

constexpr auto properties = std::to_array<Property>({
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
});
constexpr std::string_view listName = "List";

std::vector<PropertyValue> rowsOf(const Control& control, int only) {
    const int count = static_cast<int>(control.rows().size());
    if (only >= count) {
        throw ScriptError("'" + control.fullName() + "' has no row " + std::to_string(only));
    }
    const int first = only == Control::noIndex ? 0 : only;
    const int end = only == Control::noIndex ? count : only + 1;
    std::vector<PropertyValue> rows;
    for (int row = first; row < end; ++row) {
        rows.push_back({control.fullName() + ".List(" + std::to_string(row) + ")",
                        quoted(control.rows()[static_cast<std::size_t>(row)])});
    }
    return rows;
}

[[noreturn]] void failUnknown(const NamePart& property) {
    throw ScriptError("unknown property '" + property.name + "'");
}

std::vector<PropertyValue> propertiesOf(const Control& control, const NamePart& property) {
    if (property.name == listName) {
        return rowsOf(control, property.index);
    }
    for (const Property& known : properties) {
        if (known.name == property.name && property.index == Control::noIndex) {
            return {{control.fullName() + '.' + property.name, known.read(control)}};
        }
    }
    failUnknown(property);
}

std::vector<PropertyValue> propertiesOf(const Screen& screen, const NamePart& property) {
    const std::string name = std::string(screen.name()) + '.' + property.name;
    if (property.index == Control::noIndex && property.name == "Caption") {
        return {{name, quoted(screen.caption())}};
    }
    if (property.index == Control::noIndex && property.name == "Visible") {
        return {{name, truthText(screen.shown())}};
    }
    failUnknown(property);
}

} // namespace

std::vector<PropertyValue> propertiesNamed(Workbench& workbench, std::string_view name) {
    const std::vector<NamePart> parts = splitName(name);
    if (parts.size() < 2 || parts.size() > 3 || parts[0].index != Control::noIndex) {
        throw ScriptError("'" + std::string(name) + "' does not name a property");
    }
    const ScreenId screen = screenNamed(parts[0].name);
    return parts.size() == 2 ? propertiesOf(workbench.touch(screen), parts[1])
                             : propertiesOf(controlNamed(workbench, screen, parts[1]).touch(workbench), parts[2]);
}

} // namespace wb::script
