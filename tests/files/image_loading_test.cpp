#include "files/image_loading.h"

#include <gtest/gtest.h>

#include "support/program.h"

namespace wb::files {
namespace {

using Lines = std::vector<std::string>;

class ImageLoading : public testing::Test {
protected:
    ImageLoading() {
        for (int i = 0; i < 256; ++i) {
            workbench.EDIDCells(i) = i % 2 == 0 ? "1E" : "2F";
        }
    }
    static Lines cellsOf(BlockScreen& screen) {
        Lines texts;
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            texts.push_back(screen.txtEdit(i).text());
        }
        return texts;
    }
    /// The cells of a block that the constructor has filled.
    static Lines filled() {
        Lines texts;
        for (int i = 0; i < BlockScreen::cellCount; ++i) {
            texts.emplace_back(i % 2 == 0 ? "1E" : "2F");
        }
        return texts;
    }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(ImageLoading, FillsBlock0AndDecodesIt) {
    workbench.EDIDCells(8) = "04";
    workbench.EDIDCells(9) = "43"; // 0 00001 00010 00011
    LoadBlock0Cells(workbench);
    Lines expected = filled();
    expected[8] = "04";
    expected[9] = "43";
    Lines cells = cellsOf(workbench.frmEDID());
    for (Lines* texts : {&expected, &cells}) {
        texts->resize(54); // decoders may write into the flags of a timing
    }
    EXPECT_EQ(cells, expected);
    EXPECT_EQ(program.cell(54), "1E");
    EXPECT_EQ(program.cell(127), "2F");
    EXPECT_EQ(workbench.IDManufacturerName, "ABC");
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr);
}

TEST_F(ImageLoading, AMissingCellEndsTheLoadOfItsBlock) {
    workbench.EDIDCells.create(100);
    workbench.EDIDCells(99) = "7A";
    LoadBlock0Cells(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Subscript out of range"});
    EXPECT_EQ(program.cell(99), "7A");
    EXPECT_EQ(program.cell(100), "00") << "as a new screen has it";
    LoadExtensionCells(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"Subscript out of range"});
}

TEST_F(ImageLoading, DecodesOnlyATimingExtension) {
    workbench.frmCEA_EXT(); // its load step takes the model as it is now
    workbench.frmEDID().txtModel.setText("MODEL");
    LoadExtensionCells(workbench);
    EXPECT_EQ(cellsOf(workbench.frmCEA_EXT()), filled());
    EXPECT_EQ(workbench.CEADtdOffset, 0);
    EXPECT_EQ(workbench.frmCEA_EXT().txtModel.text(), "");
    EXPECT_TRUE(program.takeBoxes().empty());

    workbench.EDIDCells(128) = "02";
    workbench.EDIDCells(130) = "7F";
    LoadExtensionCells(workbench);
    EXPECT_EQ(workbench.CEADtdOffset, 127);
    EXPECT_EQ(workbench.frmCEA_EXT().txtModel.text(), "MODEL");
}

TEST_F(ImageLoading, ATagThatIsNoByteLeavesTheExtensionUndecoded) {
    workbench.EDIDCells(128) = "~~"; // 16 * 78 + 78
    LoadExtensionCells(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines(2, "Invalid procedure call or argument")) << "the helper and its caller";
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(127).text(), "2F");
    EXPECT_EQ(workbench.CEADtdOffset, 0);
}

class NewImage : public ImageLoading {
protected:
    static Lines newBlock0(const char* extensions) {
        Lines texts(128, "00");
        std::fill(texts.begin() + 1, texts.begin() + 7, "FF");
        texts[126] = extensions;
        return texts;
    }
};

TEST_F(NewImage, HasAHeaderAndNothingElse) {
    LoadBlock0Cells(workbench);
    program.takeBoxes();
    InitNewImage(workbench);
    EXPECT_EQ(program.takeBoxes(), Lines{"CEA 861 EDID Timing Extension?"});
    EXPECT_EQ(cellsOf(workbench.frmEDID()), newBlock0("00"));
    EXPECT_EQ(workbench.frmEDID().txtVersion.text(), "");
    EXPECT_EQ(workbench.frmEDID().txtRevision.text(), "");
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr);
}

TEST_F(NewImage, HasAnEmptyTimingExtensionOnYes) {
    LoadExtensionCells(workbench);
    program.takeBoxes();
    program.platform.queueAnswer(platform::Answer::Yes);
    InitNewImage(workbench);
    EXPECT_EQ(cellsOf(workbench.frmEDID()), newBlock0("01"));
    Lines extension(128, "00");
    extension[0] = "02";
    EXPECT_EQ(cellsOf(workbench.frmCEA_EXT()), extension);
}

TEST_F(ImageLoading, TheIdentityTextsAreFour) {
    FrmEdid& screen = workbench.frmEDID();
    for (SingleControl* control : {&screen.txtBrand, &screen.txtModel, &screen.txtVersion, &screen.txtRevision}) {
        control->setText("left over");
    }
    screen.txtEdit(0).setText("12");
    clearIdentityTexts(workbench);
    for (SingleControl* control : {&screen.txtBrand, &screen.txtModel, &screen.txtVersion, &screen.txtRevision}) {
        EXPECT_EQ(control->text(), "") << control->name();
    }
    EXPECT_EQ(program.cell(0), "12");
}

} // namespace
} // namespace wb::files
