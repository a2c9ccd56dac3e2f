#pragma once

#include "core/workbench.h"

/// Which procedure each event of each screen runs. Only the wiring files know all handlers.
namespace wb::shell {

/// The wiring of the whole program.
const Wiring& wiring();

void connectEdidScreen(Screen& screen);
void connectCeaExtScreen(Screen& screen);
void connectMainScreen(Screen& screen);
void connectHexCalculatorScreen(Screen& screen);
void connectDocumentScreen(Screen& screen);
void connectHelpScreen(Screen& screen);
void connectEdidRegScreen(Screen& screen);
void connectAboutScreen(Screen& screen);

} // namespace wb::shell
