#include "desktop/layouts/layout.h"

#include <stdexcept>
#include <string>

#include "desktop/layouts/screens.h"

namespace wb::desktop {

const Area* ScreenLayout::find(std::string_view name, int index) const {
    for (const std::span<const Area> areas : {own, shared}) {
        for (const Area& area : areas) {
            if (area.name == name && area.index == index) {
                return &area;
            }
        }
    }
    return nullptr;
}

const Area& ScreenLayout::at(std::string_view name) const {
    const Area* area = find(name);
    if (area == nullptr) {
        throw std::logic_error("the layout has no area " + std::string(name));
    }
    return *area;
}

const ScreenLayout& layoutOf(ScreenId id) {
    static constexpr ScreenLayout none = {};
    switch (id) {
        case ScreenId::Edid:
            return edidLayout();
        case ScreenId::CeaExt:
            return ceaExtLayout();
        case ScreenId::Document:
            return documentLayout();
        case ScreenId::HexCalculator:
            return calculatorLayout();
        case ScreenId::Help:
            return helpLayout();
        case ScreenId::EdidReg:
            return edidRegLayout();
        case ScreenId::About:
            return aboutLayout();
        case ScreenId::Main:
            return frameLayout();
        case ScreenId::Splash:
            break;
    }
    return none;
}

} // namespace wb::desktop
