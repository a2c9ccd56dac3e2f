#include "acquire/base_location.h"

#include "acquire/registry_search.h"

namespace wb::acquire {

namespace {

enum Button { saveButton, cancelButton, testButton };

constexpr const char* notes =
    "Please enter in the base location for the Registry setting."
    "\r\n\r\n"
    "An example of a valid entry might look like this(without the quotes)"
    "\r\n\r\n"
    "\"SYSTEM\\CurentControlSet\\Enum\\Display\""
    "\r\n\r\n"
    "Note: The program will automatically search all sub keys from this root position and the default Windows key is "
    "preset to (HKEY_LOCAL_MACHINE), so there is no need to add this to the base location";

void save(Workbench& workbench) {
    const std::string location = workbench.frmEDIDREG().Text1.text();
    workbench.platform.settings.write("Windows2000RegBaseLocation", location);
    workbench.RegBaseLocation = location;
}

void test(Workbench& workbench) {
    workbench.RegBaseLocation = workbench.frmEDIDREG().Text1.text();
    const std::string path = SearchRegistryForEDID(workbench, workbench.RegBaseLocation, true);
    workbench.showMessage(path.empty() ? "Unable to locate EDID Registry Entry." : path);
}

} // namespace

void Windows2000_Click(Workbench& workbench) {
    workbench.windows.showModal(workbench.frmEDIDREG());
}

void frmEDIDREG_Load(Workbench& workbench) {
    FrmEdidReg& screen = workbench.frmEDIDREG();
    screen.Text1.setText(workbench.RegBaseLocation);
    screen.Label2.setCaption(notes);
}

void frmEDIDREG_Command1_Click(Workbench& workbench, int index) {
    trapped(workbench, [&] {
        switch (index) {
            case saveButton:
                save(workbench);
                workbench.windows.unload(ScreenId::EdidReg);
                break;
            case cancelButton:
                workbench.windows.unload(ScreenId::EdidReg);
                break;
            case testButton:
                test(workbench);
                break;
            default:
                break;
        }
    });
}

} // namespace wb::acquire
