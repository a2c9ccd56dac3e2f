#include "script/control_names.h"

#include <memory>
#include <utility>

#include "core/base/digits.h"
#include "script/script_error.h"

namespace wb::script {

namespace {

constexpr std::string_view toolBarName = "tbToolBar";

NamePart parsePart(std::string_view part, std::string_view whole) {
    const std::size_t bracket = part.find('(');
    NamePart result{std::string(part.substr(0, bracket))};
    if (bracket != std::string_view::npos) {
        const bool closed = part.ends_with(')');
        const auto index =
            closed ? wholeNumber<int>(part.substr(bracket + 1, part.size() - bracket - 2)) : std::nullopt;
        if (!index || *index < 0) {
            throw ScriptError("malformed index in '" + std::string(whole) + "'");
        }
        result.index = *index;
    }
    return result;
}

/// The program has no view while the object lives.
class ViewAside {
public:
    explicit ViewAside(Workbench& workbench) : workbench_(workbench), view_(std::exchange(workbench.view, nullptr)) {}
    ViewAside(const ViewAside&) = delete;
    ViewAside& operator=(const ViewAside&) = delete;
    ~ViewAside() { workbench_.view = view_; }

private:
    Workbench& workbench_;
    View* view_;
};

/// A screen that is no part of the program, to look names up in. No view learns of it.
std::unique_ptr<Screen> makeSpecimen(Workbench& workbench, ScreenId id) {
    const ViewAside aside(workbench);
    return workbench.makeScreen(id);
}

} // namespace

std::vector<NamePart> splitName(std::string_view name) {
    std::vector<NamePart> parts;
    std::string_view rest = name;
    for (;;) {
        const std::size_t dot = rest.find('.');
        parts.push_back(parsePart(rest.substr(0, dot), name));
        if (parts.back().name.empty()) {
            throw ScriptError("malformed name '" + std::string(name) + "'");
        }
        if (dot == std::string_view::npos) {
            return parts;
        }
        rest.remove_prefix(dot + 1);
    }
}

std::optional<ScreenId> findScreen(std::string_view name) {
    for (int i = 0; i < screenCount; ++i) {
        const auto id = static_cast<ScreenId>(i);
        if (screenName(id) == name) {
            return id;
        }
    }
    return std::nullopt;
}

ScreenId screenNamed(std::string_view name) {
    const std::optional<ScreenId> id = findScreen(name);
    if (!id) {
        throw ScriptError("unknown screen '" + std::string(name) + "'");
    }
    return *id;
}

ScreenId blockScreenNamed(std::string_view name) {
    const ScreenId id = screenNamed(name);
    if (id != ScreenId::Edid && id != ScreenId::CeaExt) {
        throw ScriptError("screen '" + std::string(name) + "' has no cells");
    }
    return id;
}

std::string ControlName::full() const {
    std::string result(screenName(screen));
    result += '.' + name;
    if (index != Control::noIndex) {
        result += '(' + std::to_string(index) + ')';
    }
    return result;
}

Control* ControlName::find(const Workbench& workbench) const {
    const Screen* loaded = workbench.loaded(screen);
    return loaded == nullptr ? nullptr : loaded->find(name, index);
}

Control& ControlName::touch(Workbench& workbench) const {
    return *workbench.touch(screen).find(name, index);
}

ControlName controlNamed(Workbench& workbench, ScreenId screen, const NamePart& part) {
    ControlName result{screen, part.name, part.index};
    const Control* control = result.find(workbench);
    std::unique_ptr<Screen> specimen;
    if (control == nullptr) {
        specimen = makeSpecimen(workbench, screen);
        control = specimen->find(part.name, part.index);
    }
    if (control == nullptr) {
        throw ScriptError("unknown control '" + result.full() + "'");
    }
    result.kind = control->kind();
    return result;
}

ControlName controlNamed(Workbench& workbench, std::string_view name) {
    const std::vector<NamePart> parts = splitName(name);
    if (parts.size() != 2 || parts[0].index != Control::noIndex) {
        throw ScriptError("'" + std::string(name) + "' does not name a control of a screen");
    }
    return controlNamed(workbench, screenNamed(parts[0].name), parts[1]);
}

ControlName menuEntryNamed(Workbench& workbench, std::string_view name) {
    ControlName entry = controlNamed(workbench, ScreenId::Main, {std::string(name)});
    if (entry.kind != ControlKind::Menu) {
        throw ScriptError("'" + std::string(name) + "' is no menu entry");
    }
    return entry;
}

std::optional<ControlName> findToolBarButton(std::string_view key) {
    int index = 1;
    for (const FrmMain::ToolBarKey& button : FrmMain::toolBarKeys) {
        if (button.key == key) {
            return ControlName{ScreenId::Main, std::string(toolBarName), index, ControlKind::Menu};
        }
        ++index;
    }
    return std::nullopt;
}

} // namespace wb::script
