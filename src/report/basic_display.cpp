#include "report/basic_display.h"

#include <array>
#include <limits>
#include <span>

#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/basic_display_layout.h"
#include "report/decoder.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

// The tables: VESA E-EDID Standard, Release A, section 3.6.

/// By signal level.
constexpr auto levels = std::to_array<std::string_view>({
    "0.700, 0.300 (1.000 Vp-p)",
    "0.714, 0.286 (1.000 Vp-p)",
    "1.000, 0.400 (1.400 Vp-p)",
    "0.700, 0.000 (0.700 Vp-p)",
});

constexpr std::size_t neverWraps = std::numeric_limits<std::size_t>::max();

/// What a check says; its item starts a new line where the text before it is longer than `wrapAbove`.
struct BitItem {
    int check;
    std::string_view words;
    std::size_t wrapAbove;
};

constexpr std::array<BitItem, syncBits.size()> syncItems = {{
    {4, "Blank-to-Black Setup", neverWraps},
    {3, "Separate Syncs", neverWraps},
    {2, "Composite Sync", neverWraps},
    {1, "Sync on Green", 40},
    {0, "Serration of the Vsync", 40},
}};

constexpr std::array<BitItem, featureBits.size()> featureItems = {{
    {0, "Stand-By", neverWraps},
    {1, "Suspend", neverWraps},
    {2, "Active Off/Very Low Power", neverWraps},
    {3, "Standard Default Color Space", 40},
    {4, "Preferred Timing Mode", 40},
    {5, "Default GTF Supported", 80},
}};

/// By display type.
constexpr auto displayTypes = std::to_array<std::string_view>({
    "Monochrome / grayscale",
    "R/G/B Color",
    "Non R/G/B Multicolor",
    "Undefined",
});

enum class Wraps { Once, WhereLong };

/// Sets the checks of the bits that are set and appends their items to the text.
void listItems(int byte, std::span<const int> places, std::span<const BitItem> items, Wraps wraps, ControlArray& checks,
               std::string& text) {
    bool wrapped = false;
    for (const BitItem& item : items) {
        if (!bit(byte, places[static_cast<std::size_t>(item.check)])) {
            continue;
        }
        checks(item.check).setValue(1);
        if (!text.empty()) {
            text += ", ";
        }
        if (text.size() > item.wrapAbove && !(wrapped && wraps == Wraps::Once)) {
            append(text, {crLf, blanks(reportIndent)});
            wrapped = true;
        }
        text += item.words;
    }
}

void convertSize(Workbench& workbench, int cell, int option, std::string_view words, std::string& text) {
    decoder(workbench, [&](FrmEdid& screen) {
        join(text, {formatNumber(byteAt(screen, cell) * 10, "###"), " mm"});
        screen.Basic(option).setCaption({words, text});
    });
}

void showDigital(FrmEdid& screen, std::string& text, bool compatible) {
    screen.Analog.setVisible(false);
    screen.DFP.setVisible(true);
    screen.VideoMode(1).setValue(1);
    screen.DFP.setEnabled(true);
    screen.Analog.setEnabled(false);
    screen.DFP_1(1).setValue(compatible ? 1 : 0);
    join(text, {"Digital Signal", crLf, blanks(reportIndent),
                compatible ? "VESA DFP 1.x Compatible" : "Non - VESA DFP 1.x Compatible"});
}

void showAnalog(FrmEdid& screen, std::string& text) {
    screen.Analog.setVisible(true);
    screen.DFP.setVisible(false);
    screen.VideoMode(0).setValue(1);
    screen.DFP.setEnabled(false);
    screen.Analog.setEnabled(true);
    join(text, {"Analog Signal", crLf});
}

} // namespace

std::string gammaText(int byte) {
    return formatNumber((byte + 100) / 100.0, "##0.00");
}

void ConvertVideoInput(Workbench& workbench) {
    controlDecoder(workbench, [&](FrmEdid& screen) {
        screen.Sync.deselect();
        const int byte = byteAt(screen, cells::videoInput);
        std::string_view level;
        std::string setup;
        if (bit(byte, digitalBit)) {
            showDigital(screen, workbench.VideoInputText, false);
            if (bit(byte, dfpBit)) {
                showDigital(screen, workbench.VideoInputText, true);
            }
        } else {
            showAnalog(screen, workbench.VideoInputText);
            const int signal = bits(byte, signalLevelBits);
            screen.Signal(signal).setValue(1);
            level = levels[static_cast<std::size_t>(signal)];
            listItems(byte, syncBits, syncItems, Wraps::Once, screen.Sync, setup);
        }
        append(workbench.VideoInputText, {blanks(reportIndent), padding(level, 15), level, crLf, blanks(reportIndent),
                                          padding(setup, 15), setup});
    });
}

void ConvertMaxHorizontalSize(Workbench& workbench) {
    convertSize(workbench, cells::maxHorizontalSize, 0, "Max Horiz Size ", workbench.MaxHImageSizeText);
}

void ConvertMaxVerticalSize(Workbench& workbench) {
    convertSize(workbench, cells::maxVerticalSize, 1, "Max Vert Size ", workbench.MaxVImageSizeText);
}

void ConvertGamma(Workbench& workbench) {
    decoder(workbench, [&](FrmEdid& screen) {
        workbench.DisplayGammaText = gammaText(byteAt(screen, cells::gamma));
        screen.Basic(2).setCaption({"Gamma  ", workbench.DisplayGammaText});
    });
}

void ConvertFeatureSupport(Workbench& workbench) {
    controlDecoder(workbench, [&](FrmEdid& screen) {
        workbench.PowerFeatureText.clear();
        workbench.DisplayTypeText.clear();
        screen.FSupport.deselect();
        const int byte = byteAt(screen, cells::features);
        const int type = bits(byte, displayTypeBits);
        screen.DisplayType(type).setValue(1);
        workbench.DisplayTypeText = displayTypes[static_cast<std::size_t>(type)];
        listItems(byte, featureBits, featureItems, Wraps::WhereLong, screen.FSupport, workbench.PowerFeatureText);
    });
}

} // namespace wb::report
