#include "cli/settings.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "cli/cli_error.h"
#include "cli/panel_editing.h"
#include "core/base/text.h"
#include "fields/block0.h"
#include "fields/descriptors.h"
#include "fields/modeline_timing.h"
#include "fields/reading.h"
#include "fields/words.h"

namespace wb::cli {

namespace {

/// The width and the height of the picture in a detailed timing.
constexpr CellRange pictureSize{12, 14};

/// Runs the entry of an option; what stops it is told with the name of the option.
template <class Entry>
void entering(std::string_view option, const Entry& entry) {
    try {
        entry();
    } catch (const CliError& error) {
        throw CliError(std::string(option) + ": " + error.what());
    }
}

/// What an image tells after the entry must be what was asked for.
void require(std::string_view option, const std::string& asked, const std::string& told) {
    if (told != asked) {
        throw CliError(std::string(option) + ": the image tells " + inQuotes(told) + " instead of " + inQuotes(asked));
    }
}

template <class Number>
std::string textOf(const std::optional<Number>& number) {
    return std::to_string(number.value_or(0));
}

bool isFree(const Image& image, int block) {
    const auto bytes = image.bytes().subspan(static_cast<std::size_t>(detailedBlockBase(block)), detailedBlockSize);
    return fields::descriptorTag(image, static_cast<std::size_t>(block)) == fields::dummyTag ||
           std::all_of(bytes.begin(), bytes.end(), [](unsigned byte) { return byte == 0; });
}

/// The panel takes the two cells in their order, whereas the lower byte of the number stands in the first.
std::string productEntry(unsigned product) {
    return ByteToHex2(product % 256) + ByteToHex2(product / 256);
}

/// The name of a mode: "2560x1440 at 59.95 Hz, 241.50 MHz".
std::string modeText(const fields::Modeline& modeline) {
    const double pixels = static_cast<double>(modeline.horizontal.total) * modeline.vertical.total;
    const double hertz = static_cast<double>(modeline.clockKilohertz) * 1000 / pixels * (modeline.interlaced ? 2 : 1);
    std::string text = std::to_string(modeline.horizontal.active) + 'x' + std::to_string(modeline.vertical.active);
    text += modeline.interlaced ? " interlaced" : "";
    text += " at " + fields::decimalText(hertz, 2) + " Hz, ";
    text += fields::decimalText(static_cast<double>(modeline.clockKilohertz) / 1000, 2) + " MHz";
    return text;
}

/// Puts settings into an image, one after the other.
class Setter {
public:
    Setter(PanelEditing& editing, Image before, const ImageSettings& settings)
        : editing_(editing), settings_(settings), change_{.image = std::move(before), .done = {}, .remarks = {}} {}

    Change change() {
        setIdentity();
        for (const SlotTiming& timing : settings_.timings) {
            setTiming(timing);
        }
        if (settings_.name) {
            entering("--name", [&] { setName(*settings_.name); });
        }
        change_.image = now();
        verify();
        return change_;
    }

private:
    Image now() const { return withBytes(change_.image, editing_.bytes()); }

    void setTiming(const SlotTiming& timing) {
        const int block = timing.slot - 1;
        const int base = detailedBlockBase(block);
        const std::string slot = "timing " + std::to_string(timing.slot);
        const Image before = now();
        fields::TimingBytes bytes = fields::timingBytes(timing.modeline);
        if (fields::isTimingSlot(before, static_cast<std::size_t>(block))) {
            for (int i = pictureSize.first; i <= pictureSize.last; ++i) {
                const auto place = static_cast<std::size_t>(i);
                bytes[place] = before.byte(static_cast<std::size_t>(base) + place);
            }
        } else {
            if (!isFree(before, block)) {
                const auto tag = static_cast<std::size_t>(base) + report::descriptorTagCell;
                change_.remarks.push_back(slot + " takes the place of a descriptor (" +
                                          std::string(fields::descriptorName(before.byte(tag))) + ')');
            }
            // The block is decoded as the descriptor that it was while the cells are typed: one that never brings up a
            // box.
            entering(slot, [&] { editing_.makeDescriptor(block, report::AsciiData); });
        }
        entering(slot, [&] { editing_.typeCells({base, base + detailedBlockSize - 1}, bytes); });
        const fields::Modeline set = asHeld(timing.modeline);
        if (set.clockKilohertz != timing.modeline.clockKilohertz) {
            change_.remarks.push_back(slot + ": the pixel clock is rounded to steps of 10 kHz");
        }
        change_.done.push_back(slot + " set to " + modeText(set));
    }

    void setIdentity() {
        enterIdentity("--maker", "maker", cells::manufacturer, settings_.maker);
        if (settings_.product) {
            enterIdentity("--product", "", cells::productCode, std::optional(productEntry(*settings_.product)));
            change_.done.push_back("product code set to " + std::to_string(*settings_.product) + ", hexadecimal " +
                                   fields::hexNumber(*settings_.product, 16));
        }
        const auto digits = [](const auto& number) {
            return number ? std::optional(std::to_string(*number)) : std::nullopt;
        };
        enterIdentity("--serial", "serial number", cells::serialNumber, digits(settings_.serial));
        enterIdentity("--week", "week", {cells::week, cells::week}, digits(settings_.week));
        enterIdentity("--year", "year", {cells::year, cells::year}, digits(settings_.year));
    }

    /// `words` empty: the caller tells what was done.
    void enterIdentity(std::string_view option, std::string_view words, CellRange field,
                       const std::optional<std::string>& entry) {
        if (!entry) {
            return;
        }
        entering(option, [&] { editing_.enterIdentity(field, *entry); });
        if (!words.empty()) {
            change_.done.push_back(std::string(words) + " set to " + upperCase(*entry));
        }
    }

    void setName(const std::string& name) {
        const Image image = now();
        int block = firstBlock(
            [&](int each) { return fields::descriptorTag(image, static_cast<std::size_t>(each)) == fields::nameTag; });
        if (block == detailedBlockCount) {
            block = firstBlock([&](int each) { return isFree(image, each); });
            if (block == detailedBlockCount) {
                throw CliError("there is neither a name nor a free descriptor");
            }
            editing_.makeDescriptor(block, report::MonitorName);
        }
        editing_.enterDescriptorText(block, name);
        change_.done.push_back("name set to " + inQuotes(name));
    }

    template <class Test>
    static int firstBlock(const Test& test) {
        int block = 0;
        while (block < detailedBlockCount && !test(block)) {
            ++block;
        }
        return block;
    }

    void verify() const {
        const fields::Summary summary = fields::read(change_.image).summary;
        if (settings_.maker) {
            require("--maker", upperCase(*settings_.maker), summary.maker);
        }
        if (settings_.product) {
            require("--product", textOf(settings_.product), textOf(summary.productCode));
        }
        if (settings_.serial) {
            require("--serial", textOf(settings_.serial), textOf(summary.serialNumber));
        }
        if (settings_.week) {
            require("--week", textOf(settings_.week), textOf(summary.week));
        }
        if (settings_.year) {
            require("--year", textOf(settings_.year), textOf(summary.modelYear ? summary.modelYear : summary.year));
        }
        if (settings_.name) {
            require("--name", *settings_.name, summary.name.value_or(""));
        }
        for (const SlotTiming& timing : settings_.timings) {
            const auto base = static_cast<std::size_t>(detailedBlockBase(timing.slot - 1));
            const fields::Modeline told = fields::modelineAt(change_.image, base).value_or(fields::Modeline{});
            require("timing " + std::to_string(timing.slot), fields::modelineText(asHeld(timing.modeline)),
                    fields::modelineText(told));
        }
    }

    /// As a detailed timing tells it: without its name, the clock in steps.
    static fields::Modeline asHeld(fields::Modeline modeline) {
        constexpr std::int64_t step = fields::timingClockStep;
        modeline.name.clear();
        modeline.clockKilohertz = (modeline.clockKilohertz + step / 2) / step * step;
        return modeline;
    }

    PanelEditing& editing_;
    const ImageSettings& settings_;
    Change change_;
};

/// The cells in which a new image differs from what the command New gives, which are zeros behind the header.
struct TypedCells {
    int first;
    std::vector<std::uint8_t> bytes;
};

/// VESA E-EDID Standard, Release A, Revision 2: a digital input without more about it, and a monitor of the colour
/// space sRGB (IEC 61966-2-1) whose first timing is that of its pixels; no other timings.
void completeNewImage(PanelEditing& editing) {
    constexpr std::uint8_t digital = 0x80;
    constexpr std::uint8_t gamma22 = 120; // (gamma - 1) * 100
    constexpr std::uint8_t standardSpaceAndNativeTiming = 0x06;
    const std::array<TypedCells, 4> typed = {{
        {cells::version, {1, 4}},
        {cells::videoInput, {digital}},
        {cells::gamma, {gamma22, standardSpaceAndNativeTiming}},
        // x and y of red (0.64, 0.33), green (0.30, 0.60), blue (0.15, 0.06) and white (0.3127, 0.3290) by 1024
        {cells::chromaticity.first, {0xEE, 0x91, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54}},
    }};
    for (const TypedCells& each : typed) {
        editing.typeCells({each.first, each.first + static_cast<int>(each.bytes.size()) - 1}, each.bytes);
    }
    const std::vector<std::uint8_t> unused(cells::standardTimings.last - cells::standardTimings.first + 1, 1);
    editing.typeCells(cells::standardTimings, unused);
    for (int block = 1; block < detailedBlockCount; ++block) {
        editing.makeDummy(block);
    }
}

std::uint16_t thisYear() {
    using namespace std::chrono;
    const year_month_day today(floor<days>(system_clock::now()));
    return static_cast<std::uint16_t>(static_cast<int>(today.year()));
}

} // namespace

Change withSettings(const Image& image, const ImageSettings& settings) {
    PanelEditing editing(image);
    return Setter(editing, image, settings).change();
}

Change newImage(const ImageSettings& settings) {
    PanelEditing editing;
    completeNewImage(editing);
    ImageSettings complete = settings;
    if (!complete.year) {
        complete.year = thisYear();
    }
    if (!complete.name && complete.maker) {
        complete.name = upperCase(*complete.maker) + fields::hexNumber(complete.product.value_or(0), 16);
    }
    return Setter(editing, *Image::fromBytes(editing.bytes()), complete).change();
}

} // namespace wb::cli
