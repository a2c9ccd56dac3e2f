#include "acquire/get_edid.h"

#include <algorithm>
#include <utility>

#include "acquire/registry_search.h"
#include "block0/extension_button.h"
#include "cea/definitions.h"
#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "files/image_loading.h"
#include "files/save.h"
#include "report/definitions.h"

namespace wb::acquire {

namespace {

constexpr int readerTries = 5;

std::string bootTimeNotes() {
    return "Windows 2K/XP does not currently have the ability to read the EDID information directly from the Monitor."
           "\r\n\r\n"
           "This program will read the last known EDID Value (Which is collected at boot time.)"
           "\r\n\r\n"
           "To update the system with the most current EDID, you will need to Re-boot the system.";
}

/// What the last try gave, even if its header is none.
std::string edidFromReader(Workbench& workbench) {
    std::string data;
    for (int tries = 0; tries < readerTries && !IsEDIDHeaderValid(data); ++tries) {
        data = workbench.platform.edidReader.read(std::string(imageSize, ' '));
    }
    return data;
}

/// The cell text for the byte at `index`; a missing byte is a failure.
std::string_view cellTextOf(std::string_view data, int index) {
    const auto place = std::min(static_cast<std::size_t>(index), data.size());
    return byteText(characterCode(data.substr(place, 1)));
}

void openScreen(Workbench& workbench) {
    if (workbench.EDIDLoaded != flagFalse) {
        files::clearIdentityTexts(workbench);
        workbench.focus.moveTo(workbench.frmEDID().txtEdit(0));
    } else {
        workbench.windows.show(workbench.frmEDID());
    }
}

} // namespace

void GetEDIDData(Workbench& workbench) {
    trapped(workbench, [&] {
        if (!files::offerSave(workbench)) {
            return;
        }
        if (workbench.platform.operatingSystem.majorVersion() != platform::registryMajorVersion) {
            LoadStoredEdid(workbench, edidFromReader(workbench));
        } else if (const auto data = readStoredEdid(workbench)) {
            LoadStoredEdid(workbench, *data);
        }
    });
}

std::optional<std::string> readStoredEdid(Workbench& workbench) {
    // The notes are composed on each read, and no box shows them.
    [[maybe_unused]] const std::string notes = bootTimeNotes();
    const std::string key = SearchRegistryForEDID(workbench, workbench.RegBaseLocation, true);
    std::string data = SearchRegistryForEDID(workbench, key, false);
    if (data.empty()) {
        workbench.showMessage(
            "Unable to locate EDID Data. \r\n\r\n"
            "Using the Control Panel, please make sure that a Monitor has been Detected by Windows 2000/XP");
        return std::nullopt;
    }
    return data;
}

void LoadStoredEdid(Workbench& workbench, std::string data) {
    trapped(workbench, [&] {
        openScreen(workbench);
        workbench.LoadedBytes = data;
        data.resize(std::min<std::size_t>(data.size(), imageSize));
        FrmEdid& screen = workbench.frmEDID();
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            screen.txtEdit(i).setText(cellTextOf(data, i));
        }
        report::BuildEDIDDefinations(workbench);
        workbench.focus.moveTo(screen.txtEdit(0));
        if (block0::UpdateExtensionButton(workbench)) {
            for (int j = 0; j < BlockScreen::cellCount; ++j) {
                // The text comes first: where the block is missing altogether, its screen is not even touched.
                const std::string_view text = cellTextOf(data, BlockScreen::cellCount + j);
                workbench.frmCEA_EXT().txtEdit(j).setText(text);
            }
            cea::BuildCEA_EXT_Definations(workbench);
        }
        workbench.CurrentFileName.clear();
        noteLoaded(workbench);
        workbench.focus.moveTo(screen);
        workbench.EDIDModified = flagFalse;
    });
}

} // namespace wb::acquire
