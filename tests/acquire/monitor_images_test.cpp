// Whole images are translated: the samples, and those of a folder that the environment variable
// WORKBENCH_MONITOR_IMAGES names, such as a collection of what real monitors report, which is no part of the
// repository.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "acquire/get_edid.h"
#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "files/data_file.h"
#include "files/save.h"
#include "files/text_file.h"
#include "report/show_report.h"
#include "support/monitor_images.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

using Image = MonitorImage;

/// An image with other bytes in block 0, whose check sum fits again.
std::string changed(std::string image, std::size_t first, std::string_view bytes) {
    image.replace(first, bytes.size(), bytes);
    int sum = 0;
    for (std::size_t i = 0; i < 127; ++i) {
        sum += static_cast<unsigned char>(image[i]);
    }
    image[127] = static_cast<char>(256 - sum % 256);
    return image;
}

/// An image with that many extension blocks, the first of them with that tag.
std::string extended(std::string image, int blocks, char tag) {
    image.resize(128U * static_cast<std::size_t>(1 + blocks), '\x5A');
    image[128] = tag;
    return changed(std::move(image), 126, std::string(1, static_cast<char>(blocks)));
}

/// An image whose last descriptor is this text of 13 characters.
std::string withText(const std::string& image, const std::string& text) {
    return changed(image, 108, std::string("\0\0\0\xFE\0", 5) + text);
}

/// What monitors have and the samples do not: a later revision, descriptors of other kinds, extensions that are no
/// timing extension, and many of them.
std::vector<Image> variedImages() {
    std::vector<Image> varied;
    for (const auto& [name, bytes] : sampleImages()) {
        varied.push_back({name + ", revision 4", changed(bytes, 19, "\x04")});
        for (const char tag : {'\xF7', '\xF8'}) {
            const std::string descriptor{'\0', '\0', '\0', tag, '\0', '\x01'};
            varied.push_back({name + ", descriptor", changed(bytes, 108, descriptor)});
        }
        varied.push_back({name + ", bars in a text", withText(bytes, "A|BC D|EF\x9C\n  ")});
        for (const char tag : {'\x40', '\x70', '\xF0'}) {
            varied.push_back({name + ", one extension", extended(bytes, 1, tag)});
        }
        for (const int blocks : {2, 10, 127, 254}) {
            varied.push_back({name + ", " + std::to_string(blocks) + " extensions", extended(bytes, blocks, '\x02')});
        }
    }
    return varied;
}

enum class Collection { Samples, Varied, Foreign };

class MonitorImages : public testing::TestWithParam<Collection> {
protected:
    void SetUp() override {
        if (GetParam() == Collection::Foreign) {
            const auto foreign = foreignImages();
            if (!foreign) {
                GTEST_SKIP() << "set " << foreignFolder << " to a folder of raw images to translate them too";
            }
            images = *foreign;
        } else {
            images = GetParam() == Collection::Samples ? sampleImages() : variedImages();
        }
        ASSERT_FALSE(images.empty());
    }
    /// Loads an image into a program of its own and shows its report.
    static void translate(Program& program, const Image& image,
                          report::Passes passes = report::Passes::LastWhereAlike) {
        program.workbench.runAction([&] {
            acquire::LoadStoredEdid(program.workbench, image.bytes);
            report::ShowReport(program.workbench, false, passes);
        });
    }

    std::vector<Image> images;
};

std::vector<std::string> texts(BlockScreen& screen) {
    std::vector<std::string> result;
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        result.push_back(screen.txtEdit(i).text());
    }
    return result;
}

// A decoder may clear the serration bit in the flags of a timing; it leaves all other cells as they came.
TEST_P(MonitorImages, KeepTheirBytes) {
    for (const Image& image : images) {
        SCOPED_TRACE(image.name);
        Program program;
        translate(program, image);
        ASSERT_GE(image.bytes.size(), 128U);
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            const auto byte = static_cast<unsigned char>(image.bytes[static_cast<std::size_t>(i)]);
            const bool isFlagCell = i >= 54 && i < 126 && (i - 54) % 18 == 17;
            if (!isFlagCell || program.cell(i) != ByteToHex2(byte & 251)) {
                EXPECT_EQ(program.cell(i), ByteToHex2(byte)) << i;
            }
        }
    }
}

/// What a reader takes from the decoded text between two dumps: lines with a bar count as rows of a dump too, and give
/// the visible characters behind their first bar in pairs; a last single one is dropped.
std::vector<std::string> pairsInText(std::string_view text) {
    std::vector<std::string> pairs;
    for (auto lines = files::LineReader::ofText(text); !lines.atEnd();) {
        const std::string line = lines.readLine();
        std::string visible;
        for (std::size_t i = line.find('|'); i < line.size(); ++i) {
            if (static_cast<unsigned char>(line[i]) > ' ' && line[i] != '|') {
                visible += line[i];
            }
        }
        for (std::size_t i = 0; i + 1 < visible.size(); i += 2) {
            pairs.push_back(visible.substr(i, 2));
        }
    }
    return pairs;
}

/// The decoded text behind the dump of block 0, up to that of block 1 where there is one.
std::string_view textBehindFirstDump(std::string_view report) {
    const std::size_t lastRow = report.find("\r\n120");
    const std::size_t start = report.find("\r\n", lastRow + 2);
    return report.substr(start, report.find("EDID Block 1, Bytes 128-255") - start);
}

TEST_P(MonitorImages, ComeBackFromTheDumpOfTheirReport) {
    const TemporaryFolder folder;
    int withExtension = 0;
    for (const Image& image : images) {
        SCOPED_TRACE(image.name);
        Program program;
        Workbench& workbench = program.workbench;
        translate(program, image);
        const std::vector<std::string> block0 = texts(workbench.frmEDID());
        const std::string& report = workbench.frmDocument().rtftext.text();
        workbench.CurrentFileName = folder.write("report.DAT", report);
        ASSERT_TRUE(files::ReadEDIDDataFile(workbench));
        std::vector<std::string> expected = block0;
        const std::vector<std::string> between = pairsInText(textBehindFirstDump(report));
        expected.insert(expected.end(), between.begin(), between.end());
        const bool told = hasExtensionByDecimalText(workbench);
        EXPECT_EQ(report.find("EDID Block 1, Bytes 128-255") != std::string::npos, told);
        if (told) {
            ++withExtension;
            const std::vector<std::string> block1 = texts(workbench.frmCEA_EXT());
            expected.insert(expected.end(), block1.begin(), block1.end());
        }
        expected.resize(imageSize); // what comes later is past the array; what is not there is empty
        for (int i = 0; i < imageSize; ++i) {
            EXPECT_EQ(workbench.EDIDCells(i), expected[static_cast<std::size_t>(i)]) << i;
        }
    }
    EXPECT_GT(withExtension, 0);
}

// "A|BCDE" gives the pairs "BC" and "DE" between the blocks: the last two cells of block 1 are past the array.
TEST(ABarInADecodedText, MovesTheBlockBehindIt) {
    const TemporaryFolder folder;
    for (const Image& image : sampleImages()) {
        SCOPED_TRACE(image.name);
        Program program;
        Workbench& workbench = program.workbench;
        workbench.runAction([&] {
            acquire::LoadStoredEdid(workbench, withText(image.bytes, "A|BCDE\n      "));
            workbench.CurrentFileName = folder.file("image.DAT");
            files::FileSave(workbench);
        });
        program.takeBoxes(); // those of decoding
        ASSERT_TRUE(files::ReadEDIDDataFile(workbench));
        EXPECT_EQ(workbench.EDIDCells(127), program.cell(127));
        EXPECT_EQ(workbench.EDIDCells(128), "BC");
        EXPECT_EQ(workbench.EDIDCells(129), "DE");
        const bool two = image.bytes.size() == 256;
        EXPECT_EQ(workbench.EDIDCells(130), two ? "02" : "");
        EXPECT_EQ(workbench.EDIDCells(255), two ? ByteToHex2(static_cast<unsigned char>(image.bytes[253])) : "");
        EXPECT_EQ(program.takeBoxes().size(), two ? 1U : 0U);
    }
}

TEST_P(MonitorImages, AreToldInFull) {
    for (const Image& image : images) {
        SCOPED_TRACE(image.name);
        Program program;
        translate(program, image);
        const std::string& report = program.workbench.frmDocument().rtftext.text();
        int sum = 0;
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            sum += byteAt(program.workbench.frmEDID(), i);
        }
        const std::string words = sum % 256 == 0 ? "CheckSum OK" : "CheckSum Is Invalid";
        EXPECT_THAT(report, HasSubstr("\r\n  (127)  " + words + "\r\n"));
    }
}

/// All that a user or a script can see of the controls.
std::vector<std::string> controlsOf(Workbench& workbench) {
    std::vector<std::string> result;
    for (const Screen* screen : workbench.loadedInOrder()) {
        result.push_back(std::string(screen->name()) + (screen->shown() ? " shown " : " ") + screen->caption());
        for (const Control* control : screen->controls()) {
            std::string line = control->fullName() + " [" + control->text() + "] [" + control->caption() + "]";
            for (const int state : {control->value(), int{control->ownVisible()}, int{control->enabled()},
                                    int{control->locked()}, static_cast<int>(control->backColor()),
                                    int{control->fontBold()}, control->maxLength(), control->tag(), control->selStart(),
                                    control->selLength(), static_cast<int>(control->rows().size())}) {
                line += ' ' + std::to_string(state);
            }
            result.push_back(line);
        }
    }
    return result;
}

std::vector<std::string> childrenOf(Workbench& workbench) {
    std::vector<std::string> names;
    for (const Screen* child : workbench.windows.children()) {
        names.emplace_back(child->name());
    }
    return names;
}

void expectAlike(Program& a, Program& b) {
    EXPECT_EQ(a.boxes, b.boxes);
    EXPECT_EQ(a.lines, b.lines);
    EXPECT_TRUE(static_cast<const SharedVariables&>(a.workbench) == b.workbench);
    EXPECT_EQ(controlsOf(a.workbench), controlsOf(b.workbench));
    EXPECT_EQ(childrenOf(a.workbench), childrenOf(b.workbench));
    ASSERT_EQ(a.workbench.focus.current() != nullptr, b.workbench.focus.current() != nullptr);
    if (a.workbench.focus.current() != nullptr) {
        EXPECT_EQ(a.workbench.focus.current()->fullName(), b.workbench.focus.current()->fullName());
    }
}

TEST_P(MonitorImages, LookAlikeWhetherEachPassOfTheReportRunsOrTheLastAlone) {
    for (const Image& image : images) {
        SCOPED_TRACE(image.name);
        Program each;
        Program last;
        translate(each, image, report::Passes::Each);
        translate(last, image, report::Passes::LastWhereAlike);
        expectAlike(each, last);
    }
}

// One program for all of them, as a batch has it, against one for each.
TEST_P(MonitorImages, LeaveNothingBehindInAProgramThatStartsOver) {
    Program again;
    for (const Image& image : images) {
        SCOPED_TRACE(image.name);
        again.workbench.startOver();
        again.boxes.clear();
        again.lines.clear();
        shell::Main(again.workbench);
        translate(again, image);
        Program fresh;
        translate(fresh, image);
        expectAlike(fresh, again);
    }
}

std::string collectionName(const testing::TestParamInfo<Collection>& collection) {
    constexpr std::array<const char*, 3> names = {"samples", "varied", "foreign"};
    return names[static_cast<std::size_t>(collection.param)];
}

INSTANTIATE_TEST_SUITE_P(Collections, MonitorImages,
                         testing::Values(Collection::Samples, Collection::Varied, Collection::Foreign), collectionName);

} // namespace
} // namespace wb::test
