// Block 0 of the samples, and of the images in the folder that the environment variable WORKBENCH_MONITOR_IMAGES names,
// is compared with what edid-decode, where it is installed, says of it.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <regex>
#include <sstream>

#include "edid_decode.h"
#include "fields/reading.h"
#include "support/temporary_folder.h"

namespace wb::fields {
namespace {

namespace fs = std::filesystem;

/// The lines that edid-decode prints of block 0, without the blanks around them.
std::vector<std::string> linesOf(const fs::path& image) {
    std::istringstream out(edidDecodeOutput(image));
    std::vector<std::string> lines;
    bool inside = false;
    for (std::string line; std::getline(out, line);) {
        inside = inside || line.starts_with("Block 0,");
        if (inside) {
            const std::size_t first = std::min(line.find_first_not_of(' '), line.size());
            lines.push_back(line.substr(first));
            if (line.starts_with("Checksum:")) {
                break;
            }
        }
    }
    return lines;
}

/// What stands behind "name: ", or nothing where no line has it.
std::optional<std::string> valueOf(const std::vector<std::string>& lines, const std::string& name) {
    for (const std::string& line : lines) {
        if (line.starts_with(name + ": ")) {
            return line.substr(name.size() + 2);
        }
    }
    return {};
}

template <class T>
std::optional<std::string> textOf(const std::optional<T>& number) {
    return number ? std::optional(std::to_string(*number)) : std::nullopt;
}

std::optional<std::string> quoted(const std::optional<std::string>& text) {
    return text ? std::optional('\'' + *text + '\'') : std::nullopt;
}

/// A text in quotes as the decoder prints it. The summary knows no empty texts.
std::optional<std::string> textIn(const std::vector<std::string>& lines, const std::string& label) {
    const std::optional<std::string> text = valueOf(lines, label);
    return text == "''" ? std::nullopt : text;
}

void expectSameProduct(const std::vector<std::string>& lines, const Summary& summary) {
    EXPECT_EQ(valueOf(lines, "EDID Structure Version & Revision"), summary.version);
    EXPECT_EQ(valueOf(lines, "Manufacturer"), summary.maker);
    EXPECT_EQ(valueOf(lines, "Model"), textOf(summary.productCode));
    EXPECT_EQ(valueOf(lines, "Serial Number"), textOf(summary.serialNumber));
    EXPECT_EQ(textIn(lines, "Display Product Name"), quoted(summary.name));
    EXPECT_EQ(textIn(lines, "Display Product Serial Number"), quoted(summary.serialText));
    // A week of 255 stands for a model year since 1.4 here, and in all revisions there.
    const std::optional<int> year = summary.modelYear ? summary.modelYear : summary.year;
    const std::optional<std::string> made = valueOf(lines, "Made in");
    if (made) {
        EXPECT_EQ(*made, summary.week ? "week " + std::to_string(*summary.week) + " of " + std::to_string(*year)
                                      : std::to_string(*year));
    } else {
        EXPECT_EQ(valueOf(lines, "Model year"), textOf(year));
    }
}

void expectSameDisplay(const std::vector<std::string>& lines, const Reading& reading) {
    const Summary& summary = reading.summary;
    if (const std::optional<std::string> gamma = valueOf(lines, "Gamma")) {
        ASSERT_TRUE(summary.gamma);
        EXPECT_NEAR(std::stod(*gamma), *summary.gamma, 0.001);
    }
    if (const std::optional<std::string> bits = valueOf(lines, "Bits per primary color channel")) {
        EXPECT_EQ(*bits, textOf(summary.bitsPerColor));
    }
    const std::optional<std::string> red = valueOf(lines, "Red  ");
    std::smatch match;
    if (red && summary.primaries && std::regex_match(*red, match, std::regex("([0-9.]+), ([0-9.]+)"))) {
        // The digits that are not shown are cut off.
        EXPECT_NEAR(std::stod(match[1]), (*summary.primaries)[0].x, 0.0001);
        EXPECT_NEAR(std::stod(match[2]), (*summary.primaries)[0].y, 0.0001);
    }
    const std::optional<std::string> sum = valueOf(lines, "Checksum");
    ASSERT_TRUE(sum);
    EXPECT_EQ(sum->find("should be") == std::string::npos, reading.blocks[0].sum == Sum::Ok);
}

void expectSameRange(const std::vector<std::string>& lines, const Summary& summary) {
    const std::regex pattern(
        R"(Monitor ranges \(.*\): (\d+)-(\d+) Hz V, (\d+)-(\d+) kHz H(?:, max dotclock (\d+) MHz)?)");
    bool found = false;
    for (const std::string& line : lines) {
        std::smatch match;
        if (std::regex_match(line, match, pattern)) {
            found = true;
            ASSERT_TRUE(summary.range);
            EXPECT_EQ(std::stoi(match[1]), summary.range->minVerticalHertz);
            EXPECT_EQ(std::stoi(match[2]), summary.range->maxVerticalHertz);
            EXPECT_EQ(std::stoi(match[3]), summary.range->minHorizontalKilohertz);
            EXPECT_EQ(std::stoi(match[4]), summary.range->maxHorizontalKilohertz);
            EXPECT_EQ(match[5].matched, summary.range->maxClockMegahertz.has_value());
            if (match[5].matched) {
                EXPECT_EQ(std::stod(match[5]), *summary.range->maxClockMegahertz);
            }
        }
    }
    EXPECT_EQ(found, summary.range.has_value());
}

/// Before 1.3 the code of 16:10 stood for 1:1, which edid-decode does not heed where later standards have a mode of
/// that code.
int expectedHeight(const Mode& mode) {
    return mode.source == ModeSource::Standard && mode.width == mode.height ? mode.width * 10 / 16 : mode.height;
}

void expectSameModes(const std::vector<std::string>& lines, const Summary& summary) {
    const std::regex pattern(R"(\S.*: +(\d+)x(\d+)(i?) +([0-9.]+) Hz .* ([0-9.]+) MHz.*)");
    std::size_t count = 0;
    for (const std::string& line : lines) {
        std::smatch match;
        if (!std::regex_match(line, match, pattern)) {
            continue;
        }
        SCOPED_TRACE(line);
        ASSERT_LT(count, summary.modes.size());
        const Mode& mode = summary.modes[count++];
        EXPECT_EQ(std::stoi(match[1]), mode.width);
        EXPECT_EQ(std::stoi(match[2]), expectedHeight(mode));
        EXPECT_EQ(match[3].length() != 0, mode.interlaced == true);
        ASSERT_TRUE(mode.refreshMilliHertz);
        // All but detailed timings are told here by the nominal rate.
        const double tolerance = mode.source == ModeSource::Detailed ? 0.001 : 0.9;
        EXPECT_NEAR(std::stod(match[4]), static_cast<double>(*mode.refreshMilliHertz) / 1000, tolerance);
        if (mode.pixelClockKilohertz) {
            EXPECT_NEAR(std::stod(match[5]) * 1000, static_cast<double>(*mode.pixelClockKilohertz), 0.001);
        }
    }
    EXPECT_EQ(count, summary.modes.size());
}

void compareFolder(const fs::path& folder) {
    int images = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() != ".bin") {
            continue;
        }
        SCOPED_TRACE(entry.path().filename().string());
        const std::string bytes = test::TemporaryFolder::read(entry.path().string());
        const std::optional<Image> block0 = Image::fromBytes(bytes.substr(0, Image::blockSize));
        ASSERT_TRUE(block0);
        const Reading reading = read(*block0);
        const std::vector<std::string> lines = linesOf(entry.path());
        ASSERT_FALSE(lines.empty());
        expectSameProduct(lines, reading.summary);
        expectSameDisplay(lines, reading);
        expectSameRange(lines, reading.summary);
        expectSameModes(lines, reading.summary);
        ++images;
    }
    EXPECT_GT(images, 0);
}

TEST_F(EdidDecode, AgreesOnTheSamples) {
    compareFolder(WORKBENCH_SOURCE_DIR "/samples");
}

TEST_F(EdidDecode, AgreesOnImagesOfMonitors) {
    if (const char* folder = foreignFolder()) {
        compareFolder(folder);
    } else {
        GTEST_SKIP() << withoutFolder;
    }
}

} // namespace
} // namespace wb::fields
