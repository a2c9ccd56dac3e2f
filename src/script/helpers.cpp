#include <array>

#include "acquire/registry_search.h"
#include "core/cells.h"
#include "core/edid_image.h"
#include "script/callable.h"
#include "script/control_names.h"
#include "script/script_error.h"
#include "shell/calculator.h"
#include "shell/lifecycle.h"

namespace wb::script {

namespace {

constexpr auto helpers = std::to_array<Callable>({
    callable<&PadRight>("PadRight"),
    callable<&PadLeft>("PadLeft"),
    callable<&RepeatText>("RepeatText"),
    callable<&IndentText>("IndentText"),
    callable<&CenterText>("CenterText"),
    callable<&StripTrailingCrLf>("StripTrailingCrLf"),
    callable<&SelectAllInControl>("SelectAllInControl"),
    callable<&HexDigitValue>("HexDigitValue"),
    callable<&HexTextToChar>("HexTextToChar"),
    callable<&ByteToHex2>("ByteToHex2"),
    callable<&HexToBinaryText>("HexToBinaryText"),
    callable<&BinaryTextToDecimal>("BinaryTextToDecimal"),
    callable<&Value>("Value"),

    callable<&IsEDIDHeaderValid>("IsEDIDHeaderValid"),
    callable<&acquire::SearchRegistryForEDID>("SearchRegistryForEDID"),
    callable<&shell::GetBrandName>("GetBrandName"),
    callable<&shell::GetModelName>("GetModelName"),
    callable<&shell::HexTextToNumber>("HexTextToNumber"),
});

} // namespace

int numberArgument(const std::string& text) {
    double number = 0;
    try {
        number = strictNumber(text);
    } catch (const Failure&) {
        throw ScriptError("'" + text + "' is no number");
    }
    return roundToInt16(number);
}

Control& controlArgument(Workbench& workbench, const std::string& text) {
    return controlNamed(workbench, text).touch(workbench);
}

const Callable& helperNamed(std::string_view name) {
    for (const Callable& helper : helpers) {
        if (helper.name == name) {
            return helper;
        }
    }
    throw ScriptError("unknown helper '" + std::string(name) + "'");
}

} // namespace wb::script
