#include "desktop/tools/additions.h"

#include <memory>

#include "desktop/tools/keys_entry.h"

namespace wb::desktop {

void addTools(MainView& frame) {
    frame.attach(std::make_unique<KeysEntry>(frame));
}

} // namespace wb::desktop
