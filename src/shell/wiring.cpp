#include "shell/wiring.h"

#include "acquire/base_location.h"
#include "cea/screen.h"
#include "shell/calculator.h"
#include "shell/information.h"
#include "shell/lifecycle.h"
#include "shell/startup.h"

namespace wb::shell {

namespace {

/// Unloading the extension screen would lose its cells, so that its close button returns to the other screen.
void closeExtension(Workbench& workbench) {
    cea::Cmd_Return_Click(workbench, Control::noIndex);
}

} // namespace

const Wiring& wiring() {
    static const Wiring table = [] {
        Wiring lives{};
        const auto life = [&](ScreenId id) -> ScreenLife& { return lives[static_cast<std::size_t>(id)]; };
        life(ScreenId::Main) = {&connectMainScreen, &frmMain_Load, &frmMain_Unload};
        life(ScreenId::Edid) = {&connectEdidScreen, &frmEDID_Load, &frmEDID_Unload};
        life(ScreenId::CeaExt) = {&connectCeaExtScreen, &cea::Form_Load, &frmCEA_EXT_Unload, &closeExtension};
        life(ScreenId::Document) = {&connectDocumentScreen, &frmDocument_Load, &frmDocument_Unload};
        life(ScreenId::HexCalculator) = {&connectHexCalculatorScreen, nullptr, &frmHexCalculator_Unload};
        life(ScreenId::Help) = {&connectHelpScreen, &frmHelp_Load, nullptr};
        life(ScreenId::EdidReg) = {&connectEdidRegScreen, &acquire::frmEDIDREG_Load, nullptr};
        life(ScreenId::About) = {&connectAboutScreen, &frmAbout_Load, nullptr};
        return lives;
    }();
    return table;
}

} // namespace wb::shell
