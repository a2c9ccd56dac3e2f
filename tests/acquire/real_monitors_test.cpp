// Images that real monitors reported. They are no part of the repository; where their folder stands beside it, all of
// them are translated.

#include <gtest/gtest.h>

#include <algorithm>
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

std::vector<fs::path> images() {
    std::vector<fs::path> found;
    std::error_code absent;
    for (const auto& entry : fs::directory_iterator(WORKBENCH_SOURCE_DIR "/../shared/edids", absent)) {
        if (entry.path().extension() == ".bin") {
            found.push_back(entry.path());
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

class RealMonitors : public testing::Test {
protected:
    void SetUp() override {
        if (images().empty()) {
            GTEST_SKIP() << "the folder is not there";
        }
    }
    /// Loads an image into a program of its own and shows its report.
    static void translate(Program& program, const fs::path& image) {
        program.workbench.runAction([&] {
            acquire::LoadStoredEdid(program.workbench, TemporaryFolder::read(image.string()));
            report::ShowReport(program.workbench, false);
        });
    }
};

std::vector<std::string> texts(BlockScreen& screen) {
    std::vector<std::string> result;
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        result.push_back(screen.txtEdit(i).text());
    }
    return result;
}

// A decoder may clear the serration bit in the flags of a timing; it leaves all other cells as they came.
TEST_F(RealMonitors, KeepTheirBytes) {
    for (const fs::path& image : images()) {
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

TEST_F(RealMonitors, ComeBackFromTheDumpOfTheirReport) {
    const TemporaryFolder folder;
    int withExtension = 0;
    for (const fs::path& image : images()) {
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

TEST_F(RealMonitors, AreToldInFull) {
    for (const fs::path& image : images()) {
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

} // namespace
} // namespace wb::test
