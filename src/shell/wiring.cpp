#include "shell/wiring.h"

#include "shell/lifecycle.h"
#include "shell/startup.h"

namespace wb::shell {

const Wiring& wiring() {
    static const Wiring table = [] {
        Wiring lives{};
        const auto life = [&](ScreenId id) -> ScreenLife& { return lives[static_cast<std::size_t>(id)]; };
        life(ScreenId::Main) = {&connectMainScreen, &frmMain_Load, &frmMain_Unload};
        life(ScreenId::Edid) = {&connectEdidScreen, &frmEDID_Load, &frmEDID_Unload};
        life(ScreenId::CeaExt) = {&connectCeaExtScreen, nullptr, &frmCEA_EXT_Unload};
        life(ScreenId::Document) = {nullptr, &frmDocument_Load, &frmDocument_Unload};
        life(ScreenId::HexCalculator) = {nullptr, nullptr, nullptr};
        life(ScreenId::Help) = {nullptr, nullptr, nullptr};
        life(ScreenId::EdidReg) = {nullptr, nullptr, nullptr};
        life(ScreenId::About) = {nullptr, nullptr, nullptr};
        return lives;
    }();
    return table;
}

} // namespace wb::shell
