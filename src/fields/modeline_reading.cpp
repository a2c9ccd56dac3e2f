#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "core/base/digits.h"
#include "core/base/text.h"
#include "fields/modeline.h"

namespace wb::fields {

namespace {

constexpr std::string_view blanks = " \t\r";
constexpr double mostMegahertz = 100'000;
constexpr int mostPixels = 65535;

struct Word {
    std::string_view text;
    bool isQuoted = false;
};
using Line = std::vector<Word>;

Line wordsOf(std::string_view line) {
    Line words;
    while (true) {
        const std::size_t start = line.find_first_not_of(blanks);
        if (start == std::string_view::npos) {
            return words;
        }
        line.remove_prefix(start);
        const bool isQuoted = line.front() == '"';
        if (isQuoted) {
            line.remove_prefix(1);
        }
        const std::size_t end = isQuoted ? line.find('"') : line.find_first_of(blanks);
        if (isQuoted && end == std::string_view::npos) {
            throw ModelineError("the name has no closing quotation mark");
        }
        words.push_back({line.substr(0, end), isQuoted});
        line.remove_prefix(std::min(line.size(), isQuoted ? end + 1 : end));
    }
}

/// The lines that are neither empty nor a comment.
std::vector<Line> linesOf(std::string_view text) {
    std::vector<Line> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        Line words = wordsOf(text.substr(0, end));
        if (!words.empty() && (words.front().isQuoted || !words.front().text.starts_with('#'))) {
            lines.push_back(std::move(words));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::int64_t clockOf(std::string_view megahertz) {
    const std::optional<double> number = decimalNumber(megahertz);
    const std::int64_t kilohertz = number && *number <= mostMegahertz ? std::llround(*number * 1000) : 0;
    if (kilohertz == 0) {
        throw ModelineError("the pixel clock " + inQuotes(megahertz) + " is no number of MHz from 0.001 to 100000");
    }
    return kilohertz;
}

int pixelsOf(std::string_view text) {
    const auto number = wholeNumber<int>(text);
    if (!number || *number < 1 || *number > mostPixels) {
        throw ModelineError(inQuotes(text) + " is no whole number from 1 to 65535");
    }
    return *number;
}

void requireOrder(const ModelineAxis& axis, std::string_view direction) {
    if (axis.active > axis.syncStart || axis.syncStart >= axis.syncEnd || axis.syncEnd > axis.total) {
        std::string message = "the ";
        message += direction;
        message += " numbers do not rise from the picture over start and end of sync to the total";
        throw ModelineError(message);
    }
}

/// What the flags tell, each polarity once.
class Flags {
public:
    void read(std::string_view flag) {
        const std::string name = upperCase(flag);
        if (name == "+HSYNC" || name == "-HSYNC") {
            set(horizontal_, name);
        } else if (name == "+VSYNC" || name == "-VSYNC") {
            set(vertical_, name);
        } else if (name == "INTERLACE") {
            interlaced_ = true;
        } else {
            throw ModelineError(inQuotes(flag) + " is none of the flags +hsync, -hsync, +vsync, -vsync and interlace");
        }
    }

    void putInto(Modeline& modeline) const {
        modeline.horizontal.positiveSync = told(horizontal_);
        modeline.vertical.positiveSync = told(vertical_);
        modeline.interlaced = interlaced_;
    }

private:
    struct Polarity {
        std::string name;
        std::optional<bool> isPositive{};
    };

    static void set(Polarity& polarity, std::string_view flag) {
        if (polarity.isPositive) {
            throw ModelineError("the polarity of " + polarity.name + " is told twice");
        }
        polarity.isPositive = flag.front() == '+';
    }

    static bool told(const Polarity& polarity) {
        if (!polarity.isPositive) {
            throw ModelineError("the polarity of " + polarity.name + " is not told; add +" + polarity.name + " or -" +
                                polarity.name);
        }
        return *polarity.isPositive;
    }

    Polarity horizontal_{"hsync"};
    Polarity vertical_{"vsync"};
    bool interlaced_ = false;
};

/// `Modeline "name" clock`, four numbers of each direction, flags.
Modeline readOneLine(const Line& line) {
    constexpr std::size_t numbers = 9;
    Modeline modeline;
    std::size_t next = !line.front().isQuoted && upperCase(line.front().text) == "MODELINE" ? 1 : 0;
    if (next < line.size() && (line[next].isQuoted || !decimalNumber(line[next].text))) {
        modeline.name = line[next++].text;
    }
    if (line.size() < next + numbers) {
        throw ModelineError("a modeline has a pixel clock, four horizontal and four vertical numbers");
    }
    modeline.clockKilohertz = clockOf(line[next++].text);
    for (ModelineAxis* const axis : {&modeline.horizontal, &modeline.vertical}) {
        for (int* const number : {&axis->active, &axis->syncStart, &axis->syncEnd, &axis->total}) {
            *number = pixelsOf(line[next++].text);
        }
    }
    Flags flags;
    for (; next < line.size(); ++next) {
        flags.read(line[next].text);
    }
    flags.putInto(modeline);
    return modeline;
}

/// The number behind a word of a line.
int numberBehind(const Line& line, std::string_view word) {
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        if (upperCase(line[i].text) == word) {
            return pixelsOf(line[i + 1].text);
        }
    }
    throw ModelineError("the line " + inQuotes(line.front().text) + " has no number behind " + inQuotes(word));
}

ModelineAxis axisOf(const Line& line, std::string_view size) {
    return {.active = numberBehind(line, size),
            .syncStart = numberBehind(line, "START"),
            .syncEnd = numberBehind(line, "END"),
            .total = numberBehind(line, "TOTAL")};
}

/// A mode of `xrandr --verbose`:
///     1920x1080 (0x1c5) 148.500MHz +HSync +VSync *current +preferred
///           h: width  1920 start 2008 end 2052 total 2200 skew    0 clock  67.50KHz
///           v: height 1080 start 1084 end 1089 total 1125           clock  60.00Hz
Modeline readThreeLines(const std::vector<Line>& lines) {
    constexpr std::string_view unit = "MHZ";
    const Line& head = lines[0];
    Modeline modeline;
    modeline.name = head.front().text;
    Flags flags;
    for (std::size_t i = 1; i < head.size(); ++i) {
        const std::string word = upperCase(head[i].text);
        if (word.ends_with(unit)) {
            modeline.clockKilohertz = clockOf(head[i].text.substr(0, word.size() - unit.size()));
        } else if (!word.starts_with('(') && word != "*CURRENT" && word != "+PREFERRED") {
            flags.read(head[i].text);
        }
    }
    if (modeline.clockKilohertz == 0) {
        throw ModelineError("the first line tells no pixel clock in MHz");
    }
    modeline.horizontal = axisOf(lines[1], "WIDTH");
    modeline.vertical = axisOf(lines[2], "HEIGHT");
    flags.putInto(modeline);
    return modeline;
}

bool beginsWith(const Line& line, std::string_view word) {
    return upperCase(line.front().text) == word;
}

} // namespace

Modeline readModeline(std::string_view text) {
    const std::vector<Line> lines = linesOf(text);
    if (lines.empty()) {
        throw ModelineError("there is no modeline");
    }
    const bool isVerbose = lines.size() == 3 && beginsWith(lines[1], "H:") && beginsWith(lines[2], "V:");
    if (lines.size() > 1 && !isVerbose) {
        throw ModelineError("there is more than one line, and they are no mode of xrandr --verbose");
    }
    Modeline modeline = isVerbose ? readThreeLines(lines) : readOneLine(lines.front());
    requireOrder(modeline.horizontal, "horizontal");
    requireOrder(modeline.vertical, "vertical");
    return modeline;
}

} // namespace wb::fields
