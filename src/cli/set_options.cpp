#include "cli/set_options.h"

#include <algorithm>
#include <limits>

#include "adapters/cvt.h"
#include "cli/cli_error.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "fields/modeline_timing.h"

namespace wb::cli {

namespace {

/// The largest year that its byte counts, from 1990 on.
constexpr std::uint16_t lastYear = 1990 + 255;

/// A whole number from 0 to `most`; hexadecimal behind "0x".
template <class Number>
std::optional<Number> numberOf(const std::string& option, const std::optional<std::string>& text,
                               Number most = std::numeric_limits<Number>::max()) {
    if (!text) {
        return std::nullopt;
    }
    const bool isHexadecimal = hasHexPrefix(*text);
    const auto number =
        isHexadecimal ? wholeNumber<Number>(std::string_view(*text).substr(2), 16) : wholeNumber<Number>(*text);
    if (!number || *number > most) {
        throw UsageError(option + " takes a whole number from 0 to " + std::to_string(most) + ", not " +
                         inQuotes(*text));
    }
    return number;
}

void requirePlain(const std::optional<std::string>& name) {
    if (name && std::any_of(name->begin(), name->end(), [](char c) { return c < ' ' || c > '~'; })) {
        throw UsageError("--name takes characters of ASCII, from blank to ~");
    }
}

struct SlotText {
    int slot;
    std::string_view text;
};

SlotText slotTextOf(const std::string& option, const std::string& words, std::string_view text) {
    const std::size_t equals = text.find('=');
    const auto slot = wholeNumber<int>(text.substr(0, equals));
    if (equals == std::string_view::npos || !slot || *slot < 1 || *slot > detailedBlockCount) {
        throw UsageError(option + " takes N=" + words + " with N from 1 to 4, not " + inQuotes(text));
    }
    return {*slot, text.substr(equals + 1)};
}

/// "WIDTHxHEIGHT", "@RATE" and "R", of which the last two may be left out.
adapters::CvtMode cvtModeOf(std::string_view text) {
    std::string_view rest = text;
    adapters::CvtMode mode;
    mode.reducedBlanking = rest.ends_with('R') || rest.ends_with('r');
    if (mode.reducedBlanking) {
        rest.remove_suffix(1);
    }
    const std::size_t at = std::min(rest.find('@'), rest.size());
    const auto rate = at < rest.size() ? decimalNumber(rest.substr(at + 1)) : mode.refreshHertz;
    const std::string_view size = rest.substr(0, at);
    const std::size_t cross = std::min(size.find('x'), size.size());
    const auto width = wholeNumber<int>(size.substr(0, cross));
    const auto height = wholeNumber<int>(size.substr(std::min(cross + 1, size.size())));
    if (!rate || !width || !height) {
        throw fields::ModelineError(inQuotes(text) + " is no WIDTHxHEIGHT@RATE, such as 2560x1440@60R");
    }
    mode.width = *width;
    mode.height = *height;
    mode.refreshHertz = *rate;
    return mode;
}

/// Adds a timing that `make` gives; it must fit, and its slot must be its own.
template <class Make>
void addTiming(ImageSettings& settings, const std::string& option, const SlotText& slotText, const Make& make) {
    const std::string place = option + ' ' + std::to_string(slotText.slot);
    try {
        const fields::Modeline modeline = make(slotText.text);
        static_cast<void>(fields::timingBytes(modeline));
        settings.timings.push_back({.slot = slotText.slot, .modeline = modeline});
    } catch (const fields::ModelineError& error) {
        throw UsageError(place + ": " + error.what());
    }
    const auto sameSlot = [&](const SlotTiming& other) { return other.slot == slotText.slot; };
    if (std::count_if(settings.timings.begin(), settings.timings.end(), sameSlot) > 1) {
        throw UsageError(place + ": there is another timing for the same place");
    }
}

} // namespace

ImageSettings settingsOf(const SetTexts& texts) {
    ImageSettings settings;
    settings.maker = texts.maker;
    settings.product = numberOf<std::uint16_t>("--product", texts.product);
    settings.serial = numberOf<std::uint32_t>("--serial", texts.serial);
    settings.week = numberOf<std::uint8_t>("--week", texts.week);
    settings.year = numberOf<std::uint16_t>("--year", texts.year, lastYear);
    requirePlain(texts.name);
    settings.name = texts.name;
    for (const std::string& text : texts.timings) {
        addTiming(settings, "--timing", slotTextOf("--timing", "MODELINE", text), &fields::readModeline);
    }
    for (const std::string& text : texts.cvts) {
        addTiming(settings, "--cvt", slotTextOf("--cvt", "WIDTHxHEIGHT@RATE", text),
                  [](std::string_view mode) { return adapters::cvtModeline(cvtModeOf(mode)); });
    }
    std::sort(settings.timings.begin(), settings.timings.end(),
              [](const SlotTiming& a, const SlotTiming& b) { return a.slot < b.slot; });
    return settings;
}

} // namespace wb::cli
