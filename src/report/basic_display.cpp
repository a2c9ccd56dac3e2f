#include "report/basic_display.h"

#include <array>
#include <limits>
#include <span>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

// The tables: VESA E-EDID Standard, Release A, section 3.6.

/// By bits 6 and 5 of the video input byte.
constexpr std::array<std::string_view, 4> levels = {
    "0.700, 0.300 (1.000 Vp-p)",
    "0.714, 0.286 (1.000 Vp-p)",
    "1.000, 0.400 (1.400 Vp-p)",
    "0.700, 0.000 (0.700 Vp-p)",
};

constexpr std::size_t neverWraps = std::numeric_limits<std::size_t>::max();

/// A feature of one bit; its item starts a new line where the text before it is longer than `wrapAbove`.
struct BitItem {
    int bit;
    int control;
    std::string_view words;
    std::size_t wrapAbove;
};

constexpr std::array<BitItem, 5> syncItems = {{
    {4, 4, "Blank-to-Black Setup", neverWraps},
    {3, 3, "Separate Syncs", neverWraps},
    {2, 2, "Composite Sync", neverWraps},
    {1, 1, "Sync on Green", 40},
    {0, 0, "Serration of the Vsync", 40},
}};

constexpr std::array<BitItem, 6> featureItems = {{
    {7, 0, "Stand-By", neverWraps},
    {6, 1, "Suspend", neverWraps},
    {5, 2, "Active Off/Very Low Power", neverWraps},
    {2, 3, "Standard Default Color Space", 40},
    {1, 4, "Preferred Timing Mode", 40},
    {0, 5, "Default GTF Supported", 80},
}};

/// By bits 4 and 3 of the feature byte.
constexpr std::array<std::string_view, 4> displayTypes = {
    "Monochrome / grayscale",
    "R/G/B Color",
    "Non R/G/B Multicolor",
    "Undefined",
};

enum class Wraps { Once, WhereLong };

/// Sets the checks of the bits that are set and appends their items to the text.
void listItems(int byte, std::span<const BitItem> items, Wraps wraps, ControlArray& checks, std::string& text) {
    bool wrapped = false;
    for (const BitItem& item : items) {
        if ((byte & (1 << item.bit)) == 0) {
            continue;
        }
        checks(item.control).setValue(1);
        if (!text.empty()) {
            text += ", ";
        }
        if (text.size() > item.wrapAbove && !(wrapped && wraps == Wraps::Once)) {
            text += line() + IndentText("", reportIndent);
            wrapped = true;
        }
        text += item.words;
    }
}

void convertSize(Workbench& workbench, int cell, int option, std::string_view words, std::string& text) {
    FrmEdid& screen = workbench.frmEDID();
    text = formatNumber(byteAt(screen, cell) * 10, "###") + " mm";
    screen.Basic(option).setCaption(std::string(words) + text);
    RecalcBlock0Checksum(workbench);
}

void showDigital(FrmEdid& screen, std::string& text, bool compatible) {
    screen.Analog.setVisible(false);
    screen.DFP.setVisible(true);
    screen.VideoMode(1).setValue(1);
    screen.DFP.setEnabled(true);
    screen.Analog.setEnabled(false);
    screen.DFP_1(1).setValue(compatible ? 1 : 0);
    text = line("Digital Signal") +
           IndentText(compatible ? "VESA DFP 1.x Compatible" : "Non - VESA DFP 1.x Compatible", reportIndent);
}

void showAnalog(FrmEdid& screen, std::string& text) {
    screen.Analog.setVisible(true);
    screen.DFP.setVisible(false);
    screen.VideoMode(0).setValue(1);
    screen.DFP.setEnabled(false);
    screen.Analog.setEnabled(true);
    text = line("Analog Signal");
}

} // namespace

std::string gammaText(int byte) {
    return formatNumber((byte + 100) / 100.0, "##0.00");
}

void ConvertVideoInput(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        screen.InFocusDispatch = flagTrue;
        screen.Sync.deselect();
        const int byte = byteAt(screen, 20);
        std::string level;
        std::string setup;
        if ((byte & 128) != 0) {
            showDigital(screen, workbench.VideoInputText, false);
            if ((byte & 1) != 0) {
                showDigital(screen, workbench.VideoInputText, true);
            }
        } else {
            showAnalog(screen, workbench.VideoInputText);
            const int signal = (byte & 96) / 32;
            screen.Signal(signal).setValue(1);
            level = levels[static_cast<std::size_t>(signal)];
            listItems(byte, syncItems, Wraps::Once, screen.Sync, setup);
        }
        workbench.VideoInputText +=
            line(IndentText(PadLeft(level, 15), reportIndent)) + IndentText(PadLeft(setup, 15), reportIndent);
        RecalcBlock0Checksum(workbench);
        screen.InFocusDispatch = flagFalse;
    });
}

void ConvertMaxHorizontalSize(Workbench& workbench) {
    trapped(workbench, [&] { convertSize(workbench, 21, 0, "Max Horiz Size ", workbench.MaxHImageSizeText); });
}

void ConvertMaxVerticalSize(Workbench& workbench) {
    trapped(workbench, [&] { convertSize(workbench, 22, 1, "Max Vert Size ", workbench.MaxVImageSizeText); });
}

void ConvertGamma(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        workbench.DisplayGammaText = gammaText(byteAt(screen, 23));
        screen.Basic(2).setCaption("Gamma  " + workbench.DisplayGammaText);
        RecalcBlock0Checksum(workbench);
    });
}

void ConvertFeatureSupport(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        workbench.PowerFeatureText.clear();
        workbench.DisplayTypeText.clear();
        screen.InFocusDispatch = flagTrue;
        screen.FSupport.deselect();
        const int byte = byteAt(screen, 24);
        const int type = (byte & 24) / 8;
        screen.DisplayType(type).setValue(1);
        workbench.DisplayTypeText = displayTypes[static_cast<std::size_t>(type)];
        listItems(byte, featureItems, Wraps::WhereLong, screen.FSupport, workbench.PowerFeatureText);
        RecalcBlock0Checksum(workbench);
        screen.InFocusDispatch = flagFalse;
    });
}

} // namespace wb::report
