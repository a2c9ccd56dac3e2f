#include "shell/wiring.h"

namespace wb::shell {

void connectCeaExtScreen(Screen&) {}

} // namespace wb::shell
