#include "desktop/tools/additions.h"

#include <memory>

#include "desktop/tools/byte_panel.h"
#include "desktop/tools/edit_menu.h"
#include "desktop/tools/file_entries.h"
#include "desktop/tools/keys_entry.h"
#include "desktop/tools/tools_menu.h"
#include "desktop/tools/view_menu.h"

namespace wb::desktop {

void addTools(MainView& frame) {
    frame.attach(std::make_unique<FileEntries>(frame));
    frame.attach(std::make_unique<EditMenu>(frame));
    frame.attach(std::make_unique<ViewMenu>(frame));
    frame.attach(std::make_unique<BytePanel>(frame));
    frame.attach(std::make_unique<KeysEntry>(frame));
    frame.attach(std::make_unique<ToolsMenu>(frame));
}

} // namespace wb::desktop
