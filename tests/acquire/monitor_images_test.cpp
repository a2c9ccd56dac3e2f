// Whole images are translated: the samples, and those of a folder that the environment variable
// WORKBENCH_MONITOR_IMAGES names, such as a collection of what real monitors report, which is no part of the
// repository.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "acquire/get_edid.h"
#include "core/edid_image.h"
#include "core/text.h"
#include "files/data_file.h"
#include "report/show_report.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* foreignFolder = "WORKBENCH_MONITOR_IMAGES";

std::vector<fs::path> imagesIn(const fs::path& folder) {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() == ".bin") {
            found.push_back(entry.path());
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

enum class Collection { Samples, Foreign };

class MonitorImages : public testing::TestWithParam<Collection> {
protected:
    void SetUp() override {
        fs::path folder = WORKBENCH_SOURCE_DIR "/samples";
        if (GetParam() == Collection::Foreign) {
            const char* named = std::getenv(foreignFolder);
            if (named == nullptr) {
                GTEST_SKIP() << "set " << foreignFolder << " to a folder of raw images to translate them too";
            }
            folder = named;
        }
        images = imagesIn(folder);
        ASSERT_FALSE(images.empty()) << folder;
    }
    /// Loads an image into a program of its own and shows its report.
    static void translate(Program& program, const fs::path& image) {
        program.workbench.runAction([&] {
            acquire::LoadStoredEdid(program.workbench, TemporaryFolder::read(image.string()));
            report::ShowReport(program.workbench, false);
        });
    }

    std::vector<fs::path> images;
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
    for (const fs::path& image : images) {
        SCOPED_TRACE(image.filename());
        Program program;
        translate(program, image);
        const std::string bytes = TemporaryFolder::read(image.string());
        ASSERT_GE(bytes.size(), 128U);
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            const auto byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
            const bool isFlagCell = i >= 54 && i < 126 && (i - 54) % 18 == 17;
            if (!isFlagCell || program.cell(i) != ByteToHex2(byte & 251)) {
                EXPECT_EQ(program.cell(i), ByteToHex2(byte)) << i;
            }
        }
    }
}

TEST_P(MonitorImages, ComeBackFromTheDumpOfTheirReport) {
    const TemporaryFolder folder;
    int withExtension = 0;
    for (const fs::path& image : images) {
        SCOPED_TRACE(image.filename());
        Program program;
        Workbench& workbench = program.workbench;
        translate(program, image);
        const std::vector<std::string> block0 = texts(workbench.frmEDID());
        const std::string& report = workbench.frmDocument().rtftext.text();
        workbench.CurrentFileName = folder.write("report.DAT", report);
        ASSERT_TRUE(files::ReadEDIDDataFile(workbench));
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            EXPECT_EQ(workbench.EDIDCells(i), block0[static_cast<std::size_t>(i)]) << i;
        }
        const bool told = hasExtensionByDecimalText(workbench);
        EXPECT_EQ(report.find("EDID Block 1, Bytes 128-255") != std::string::npos, told);
        if (told) {
            ++withExtension;
            const std::vector<std::string> block1 = texts(workbench.frmCEA_EXT());
            for (int i = 0; i < BlockScreen::cellCount; ++i) {
                EXPECT_EQ(workbench.EDIDCells(128 + i), block1[static_cast<std::size_t>(i)]) << 128 + i;
            }
        }
    }
    EXPECT_GT(withExtension, 0);
}

TEST_P(MonitorImages, AreToldInFull) {
    for (const fs::path& image : images) {
        SCOPED_TRACE(image.filename());
        Program program;
        translate(program, image);
        const std::string& report = program.workbench.frmDocument().rtftext.text();
        int sum = 0;
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            sum += byteAt(program.workbench.frmEDID(), i);
        }
        const std::string words = sum % 256 == 0 ? "CheckSum OK" : "CheckSum Is Invalid";
        EXPECT_NE(report.find("\r\n  (127)  " + words + "\r\n"), std::string::npos);
    }
}

INSTANTIATE_TEST_SUITE_P(Collections, MonitorImages, testing::Values(Collection::Samples, Collection::Foreign),
                         [](const auto& collection) {
                             return collection.param == Collection::Samples ? "samples" : "foreign";
                         });

} // namespace
} // namespace wb::test
