#include "shell/information.h"

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/version.h"
#include "files/text_file.h"
#include "platform/open_key.h"
#include "shell/startup.h"

namespace wb::shell {

namespace {

constexpr const char* standardsPointer =
    "For detailed information regarding the use of this program, please refer to the VESA\xAE Enhanced Extended "
    "Display Identification Data Standard and to the EIA/CEA-861 standard of uncompressed high-speed digital "
    "interfaces, which can be had from:";

constexpr const char* vesaContact =
    "Video Electronics Standards Association\r\n"
    "100 Standards Avenue\r\n"
    "Anytown\r\n"
    "Telephone: 555-0100\r\n"
    "Web: www.vesa.example";

constexpr const char* eiaContact =
    "Electronic Industries Alliance\r\n"
    "200 Standards Avenue\r\n"
    "Anytown\r\n"
    "Telephone: 555-0200\r\n"
    "Web: www.eia.example";

constexpr const char* writtenBy =
    "Written By\r\n"
    "Halvorine Corporation\r\n"
    "1 Vantrel Road, Anytown\r\n"
    "Telephone: 555-0300\r\n"
    "E-mail: workbench@halvorine.example\r\n"
    "E-mail: support@halvorine.example\r\n"
    "Copyright Halvorine Corporation\r\n"
    "Modified: workbench@halvorine.example";

constexpr const char* makerAddress =
    "Halvorine Corporation, 1 Vantrel Road\r\n"
    "Anytown";

/// The bytes of a number, least significant first, as a decimal text.
std::string numberText(const std::string& bytes) {
    std::string digits = "&h";
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        digits += ByteToHex2(static_cast<unsigned char>(*byte));
    }
    return plainDecimal(leadingNumber(digits));
}

std::string textOf(const platform::RegistryValue& value) {
    std::string data = value.data;
    if (data.ends_with('\0')) {
        data.pop_back();
    }
    return value.type == platform::RegistryType::Number32 ? numberText(data) : data;
}

void run(Workbench& workbench, const std::string& program) {
    if (!workbench.platform.shell.start(
            {.verb = "open", .program = program, .arguments = "", .folder = "", .hidden = false})) {
        throw Failure(FailureKind::FileNotFound);
    }
}

} // namespace

void Info_Click(Workbench& workbench) {
    workbench.windows.showModal(workbench.frmHelp());
}

void mnuHelpAbout_Click(Workbench& workbench) {
    workbench.windows.showModal(workbench.frmAbout());
}

void frmHelp_Load(Workbench& workbench) {
    FrmHelp& screen = workbench.frmHelp();
    screen.Label1.setCaption(standardsPointer);
    screen.Label3.setCaption(vesaContact);
    screen.Label4.setCaption(eiaContact);
}

void frmHelp_Command1_Click(Workbench& workbench) {
    workbench.windows.unload(ScreenId::Help);
}

void frmAbout_Load(Workbench& workbench) {
    FrmAbout& screen = workbench.frmAbout();
    screen.setCaption(programTitle);
    screen.lblVersion.setCaption(std::string("Version ") + programVersion());
    screen.lblWrittenby.setCaption(writtenBy);
    screen.lblAddress.setCaption(makerAddress);
}

void frmAbout_cmdOK_Click(Workbench& workbench) {
    workbench.windows.unload(ScreenId::About);
}

void StartSysInfo(Workbench& workbench) {
    trapped(workbench, [&] {
        std::string path;
        if (GetKeyValue(workbench, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path)) {
            run(workbench, path);
            return;
        }
        if (GetKeyValue(workbench, "SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", path)) {
            const std::string program = path + "\\MSINFO32.EXE";
            if (files::fileExists(program)) {
                run(workbench, program);
                return;
            }
        }
        workbench.showMessage("System Information Is Unavailable At This Time");
    });
}

bool GetKeyValue(Workbench& workbench, const std::string& KeyName, const std::string& SubKeyRef, std::string& KeyVal) {
    KeyVal.clear();
    platform::Registry& registry = workbench.platform.registry;
    const platform::OpenKey key(registry, KeyName);
    platform::RegistryValue value;
    if (!key.isOpen() || registry.readValue(key.key(), SubKeyRef, value) != platform::RegistryCode::Ok ||
        value.data.size() > platform::registryBufferSize) {
        return false;
    }
    KeyVal = textOf(value);
    return true;
}

} // namespace wb::shell
