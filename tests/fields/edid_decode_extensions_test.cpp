// Sums, detailed timings, video codes and data blocks of all blocks of the samples, and of the images in the folder
// that the environment variable WORKBENCH_MONITOR_IMAGES names, are compared with what edid-decode, where it is
// installed, says of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <regex>
#include <sstream>

#include "edid_decode.h"
#include "fields/cta_video_codes.h"
#include "image_of.h"

namespace wb::fields {
namespace {

namespace fs = std::filesystem;

/// What is compared, each thing as a line.
struct Told {
    std::vector<std::string> sums{};
    std::vector<std::string> detailed{};
    std::vector<std::string> videoCodes{};
    std::vector<std::string> dataBlocks{};
};

std::string detailedLine(const std::string& size, bool interlaced, std::int64_t milliHertz, std::int64_t kilohertz) {
    return size + (interlaced ? "i " : " ") + std::to_string(milliHertz) + " mHz, " + std::to_string(kilohertz) +
           " kHz";
}

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return text;
}

/// Reads the output of edid-decode line by line.
class ForeignReader {
public:
    Told read(const std::string& output) {
        std::istringstream lines(output);
        for (std::string line; std::getline(lines, line);) {
            readLine(line);
        }
        return std::move(told_);
    }

private:
    void readLine(const std::string& line) {
        static const std::regex block("Block +(\\d+), .*:");
        static const std::regex sum("Checksum: 0x[0-9a-f]+( \\(should be.*)?");
        static const std::regex section("  (\\S[^(,]*Data Block).*:");
        static const std::regex timing(" +DTD(?: +\\d+)?: +(\\d+x\\d+)(i?) +([0-9.]+) Hz.* ([0-9.]+) MHz.*");
        static const std::regex code("    VIC +(\\d+):.*?( \\(native\\))?");
        std::smatch match;
        if (std::regex_match(line, match, block)) {
            isExtension_ = match[1] != "0";
            hasTimings_ = true;
        } else if (std::regex_match(line, match, sum)) {
            told_.sums.emplace_back(match[1].matched ? "wrong" : "ok");
        } else if (isExtension_ && std::regex_match(line, match, section)) {
            section_ = lowerCase(match[1]);
            told_.dataBlocks.push_back(section_);
        } else if (isExtension_ && line.find("Display Descriptor (") != std::string::npos) {
            // The standard ends the timings of an extension at the first without a clock; this decoder goes on.
            hasTimings_ = false;
        } else if (hasTimings_ && std::regex_match(line, match, timing)) {
            told_.detailed.push_back(detailedLine(match[1], match[2] == "i", std::llround(std::stod(match[3]) * 1000),
                                                  std::llround(std::stod(match[4]) * 1000)));
        } else if ((section_ == "video data block" || section_ == "ycbcr 4:2:0 video data block") &&
                   std::regex_match(line, match, code)) {
            told_.videoCodes.push_back(match[1].str() + (match[2].matched ? " native" : ""));
        }
    }

    Told told_{};
    std::string section_{};
    bool isExtension_ = false;
    bool hasTimings_ = true;
};

/// Data blocks that edid-decode calls otherwise.
std::string foreignName(const std::string& name) {
    struct Pair {
        const char* ours;
        const char* theirs;
    };
    constexpr std::array<Pair, 14> table = {{
        {"hdmi vendor-specific data block", "vendor-specific data block"},
        {"hdmi forum vendor-specific data block", "vendor-specific data block"},
        {"product identification", "product identification data block"},
        {"display parameters", "display parameters data block"},
        {"type i detailed timings", "video timing modes type 1 - detailed timings data block"},
        {"type vii detailed timings", "video timing modes type 7 - detailed timings data block"},
        {"type viii timing codes", "video timing modes type 8 - enumerated timing codes data block"},
        {"type ix formula-based timings", "video timing modes type 9 - formula-based timings data block"},
        {"type x formula-based timings", "video timing modes type 10 - formula-based timings data block"},
        {"display interface features", "display interface features data block"},
        {"tiled display topology", "tiled display topology data block"},
        {"container identification", "containerid data block"},
        {"vendor-specific data", "vendor-specific data block"},
        {"cta-861 data blocks", "cta-861 displayid data block"},
    }};
    for (const auto& [ours, theirs] : table) {
        if (name == ours) {
            return theirs;
        }
    }
    return name;
}

bool isNative(const Reading& reading, const Field& code) {
    const Field* flag = fieldAt(reading, code.where.front().byte, 7);
    return flag->label == "Native" && flag->value == Value(true);
}

Told toldBy(const Reading& reading) {
    Told told;
    for (const BlockInfo& block : reading.blocks) {
        if (block.sum != Sum::Missing) {
            told.sums.emplace_back(block.sum == Sum::Ok ? "ok" : "wrong");
        }
    }
    for (const Mode& mode : reading.summary.modes) {
        if (mode.source == ModeSource::Detailed) {
            told.detailed.push_back(detailedLine(std::to_string(mode.width) + 'x' + std::to_string(mode.height),
                                                 *mode.interlaced, *mode.refreshMilliHertz, *mode.pixelClockKilohertz));
        }
    }
    const std::regex words("\\d+ \\((.*)\\)");
    for (const Field& field : reading.fields) {
        std::smatch match;
        if (field.label == "Video code") {
            told.videoCodes.push_back(std::to_string(std::get<std::int64_t>(field.value)) +
                                      (isNative(reading, field) ? " native" : ""));
        } else if ((field.label == "Tag of a data block" || field.label == "Extended tag") &&
                   std::regex_match(field.text, match, words) && match[1] != "extended tag") {
            told.dataBlocks.push_back(foreignName(lowerCase(match[1])));
        }
    }
    return told;
}

int compareFolder(const fs::path& folder) {
    int images = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::optional<Image> image = Image::fromBytes(test::TemporaryFolder::read(entry.path().string()));
        if (entry.path().extension() != ".bin" || !image || !image->hasHeader()) {
            continue;
        }
        SCOPED_TRACE(entry.path().filename().string());
        const Told ours = toldBy(read(*image));
        const Told theirs = ForeignReader().read(edidDecodeOutput(entry.path()));
        EXPECT_EQ(ours.sums, theirs.sums);
        EXPECT_EQ(ours.detailed, theirs.detailed);
        EXPECT_EQ(ours.videoCodes, theirs.videoCodes);
        EXPECT_EQ(ours.dataBlocks, theirs.dataBlocks);
        ++images;
    }
    return images;
}

class EdidDecodeExtensions : public EdidDecode {};

TEST_F(EdidDecodeExtensions, AgreesOnTheSamples) {
    EXPECT_GT(compareFolder(WORKBENCH_SOURCE_DIR "/samples"), 0);
}

TEST_F(EdidDecodeExtensions, AgreesOnImagesOfMonitors) {
    if (const char* folder = foreignFolder()) {
        EXPECT_GT(compareFolder(folder), 0);
    } else {
        GTEST_SKIP() << withoutFolder;
    }
}

/// The same line that edid-decode prints of a video code.
std::string formatLine(unsigned code) {
    const VideoFormat& format = *videoFormatOf(code);
    return std::to_string(code) + ' ' + std::to_string(format.width) + 'x' + std::to_string(format.height) +
           (format.interlaced ? "i " : " ") + std::string(format.aspect) + ' ' +
           std::to_string(*modeOf(format, false).refreshMilliHertz) + " mHz " + std::to_string(format.clockKilohertz) +
           " kHz";
}

TEST_F(EdidDecodeExtensions, AgreesOnEveryVideoCode) {
    ImageOf image(3);
    std::vector<std::string> expected;
    constexpr std::size_t codesOfBlock = 31;
    std::size_t place = 128;
    std::size_t count = 0;
    for (unsigned code = 1; code <= 219; ++code) {
        if (videoFormatOf(code) == nullptr) {
            continue;
        }
        expected.push_back(formatLine(code));
        // Three full data blocks in each extension.
        const std::size_t position = count % (3 * codesOfBlock);
        place = 128 * (1 + count / (3 * codesOfBlock));
        image.set(place, {0x02, 0x03, 4 + 3 * 32});
        image.set(place + 4 + position / codesOfBlock * 32, {0x5F});
        image.set(place + 5 + position / codesOfBlock * 32 + position % codesOfBlock, {static_cast<int>(code)});
        ++count;
    }
    const test::TemporaryFolder folder;
    const std::string path = folder.write("codes.bin", image.withSums().image().content());
    std::istringstream lines(edidDecodeOutput(path));
    const std::regex pattern(" +VIC +(\\d+): +(\\d+x\\d+i?) +([0-9.]+) Hz +(\\S+) +\\S+ kHz +([0-9.]+) MHz.*");
    std::vector<std::string> told;
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (std::regex_match(line, match, pattern)) {
            told.push_back(match[1].str() + ' ' + match[2].str() + ' ' + match[4].str() + ' ' +
                           std::to_string(std::llround(std::stod(match[3]) * 1000)) + " mHz " +
                           std::to_string(std::llround(std::stod(match[5]) * 1000)) + " kHz");
        }
    }
    EXPECT_EQ(told, expected);
}

} // namespace
} // namespace wb::fields
