#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/workbench.h"

/// Screens and controls by the names that scripts use.
namespace wb::script {

/// One part of a dotted name, with the index in brackets where one stands.
struct NamePart {
    std::string name;
    int index = Control::noIndex;
};

/// The parts of a name such as "frmEDID.txtEdit(8).Text". A name that is not built so is a ScriptError.
std::vector<NamePart> splitName(std::string_view name);

/// The screen of that name, or nothing.
std::optional<ScreenId> findScreen(std::string_view name);
/// The same; an unknown name is a ScriptError.
ScreenId screenNamed(std::string_view name);
/// The same; a screen without a grid of cells is a ScriptError.
ScreenId blockScreenNamed(std::string_view name);

/// A control that exists wherever its screen does.
struct ControlName {
    ScreenId screen = ScreenId::Main;
    std::string name;
    int index = Control::noIndex;
    ControlKind kind = ControlKind::Label;

    /// Such as "frmEDID.txtEdit(8)".
    std::string full() const;
    /// The control if its screen exists, without touching it; else null.
    Control* find(const Workbench& workbench) const;
    /// The control; touches its screen.
    Control& touch(Workbench& workbench) const;
};

/// The control of that screen; an unknown one is a ScriptError. Touches nothing.
ControlName controlNamed(Workbench& workbench, ScreenId screen, const NamePart& part);
/// The control of a name "SCREEN.CONTROL(i)".
ControlName controlNamed(Workbench& workbench, std::string_view name);
/// The menu entry of that control name.
ControlName menuEntryNamed(Workbench& workbench, std::string_view name);
/// The tool bar button of that key, or nothing: unknown keys do nothing.
std::optional<ControlName> findToolBarButton(std::string_view key);

} // namespace wb::script
