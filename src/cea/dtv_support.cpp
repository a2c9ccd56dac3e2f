#include "cea/dtv_support.h"

#include <array>

#include "cea/digits.h"
#include "cea/handlers.h"
#include "cea/procedure.h"
#include "core/base/image_layout.h"
#include "core/base/text.h"

namespace wb::cea {

namespace {

struct SupportFlag {
    std::string_view set;
    std::string_view clear;
};

/// From bit 7 down.
constexpr std::array<SupportFlag, 4> supportFlags = {
    {{"DTV Supports Underscan", "DTV Does Not Support Underscan"},
     {"DTV Supports Basic Audio", "DTV Does Not Support Basic Audio"},
     {"DTV Supports YCbCr 4:4:4", "DTV Does Not Support YCbCr 4:4:4"},
     {"DTV Supports YCbCr 4:2:2", "DTV Does Not Support YCbCr 4:2:2"}}};

constexpr std::string_view hexDigits = "0123456789ABCDEF";

std::string_view flagText(FrmCeaExt& screen, int flagNumber) {
    const SupportFlag& texts = supportFlags[static_cast<std::size_t>(flagNumber)];
    return screen.NativeChk(flagNumber).selected() ? texts.set : texts.clear;
}

void breakLongLine(std::string& text) {
    if (text.size() > 40) {
        text += crLf;
        text += "   ";
    }
}

/// Shows the number of native formats and adds what the report says of it; nothing for another character.
void decodeNativeFormats(FrmCeaExt& screen, std::string_view digit, std::string& text) {
    const auto number = digit.empty() ? std::string_view::npos : hexDigits.find(digit);
    if (number == std::string_view::npos) {
        return;
    }
    screen.NativeCBox.setValue(static_cast<int>(number));
    if (number == 0) {
        text += ", There are no Native Format Specified.";
    } else {
        append(text, {", Native Format: ", std::to_string(number)});
    }
}

} // namespace

void BuildDTVSupport(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        FrmCeaExt& screen = run.screen;
        screen.NativeChk.deselect();
        const std::string_view digits = upperDigits(run.text(extensionCells::support));
        for (int i = 0; i < static_cast<int>(digits.size()); ++i) {
            screen.NativeChk(i).setValue(digits[static_cast<std::size_t>(i)] == '1' ? 1 : 0);
        }
        std::string& text = run.workbench.DTVSupportText;
        join(text, {flagText(screen, 0), ", ", flagText(screen, 1)});
        breakLongLine(text);
        append(text, {", ", flagText(screen, 2), ", ", flagText(screen, 3)});
        breakLongLine(text);
        decodeNativeFormats(screen, middlePart(run.text(extensionCells::support), 2, 1), text);
    });
}

void NativeChk_Click(Workbench& workbench, int /*index*/) {
    panelHandler(workbench, [](const Procedure& run) {
        std::string digits;
        for (int i = 0; i < static_cast<int>(supportFlags.size()); ++i) {
            digits += run.screen.NativeChk(i).selected() ? '1' : '0';
        }
        const auto number = static_cast<std::size_t>(binaryNumber(run.workbench, digits));
        run.write(extensionCells::support, hexDigits[number] + middlePart(run.text(extensionCells::support), 2, 1));
    });
}

void NativeCBox_Click(Workbench& workbench, int /*index*/) {
    panelHandler(workbench, [](const Procedure& run) {
        const int row = shownRow(run.screen.NativeCBox);
        std::string digit;
        if (row >= 0) {
            digit = hexDigits[static_cast<std::size_t>(row)];
        }
        run.write(extensionCells::support, leftPart(run.text(extensionCells::support), 1) + digit);
    });
}

} // namespace wb::cea
