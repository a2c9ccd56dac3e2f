#include "report/show_report.h"

#include <gmock/gmock.h>

#include "block0_fixture.h"

namespace wb::report {
namespace {

using testing::HasSubstr;
using testing::Not;

class Show : public Block0 {
protected:
    Show() { workbench.windows.show(screen); }
    Control& document() { return workbench.frmDocument().rtftext; }
    Lines windowNames() {
        Lines names;
        for (const Screen* window : workbench.windows.children()) {
            names.emplace_back(window->name());
        }
        return names;
    }
};

TEST_F(Show, PutsTheReportIntoTheWindow) {
    ShowReport(workbench, false);
    EXPECT_EQ(workbench.DocumentOpen, flagTrue);
    EXPECT_EQ(windowNames(), (Lines{"frmDocument", "frmEDID"}));
    EXPECT_EQ(workbench.focus.current(), &document());
    EXPECT_TRUE(document().locked());
    EXPECT_EQ(document().text().substr(0, 6), "\r\n\r\n\r\n");
    EXPECT_THAT(document().text(), HasSubstr("(38-53)  Standard Timing Identification:\r\n\r\n  (126)    (127)  "));
    EXPECT_THAT(document().text(), Not(HasSubstr("END REPORT")));
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr);
}

TEST_F(Show, ReplacesTheTextOfAnOpenWindow) {
    ShowReport(workbench, false);
    const std::string first = document().text();
    set(0, {"AB"});
    workbench.focus.moveTo(screen);
    ShowReport(workbench, false);
    EXPECT_NE(document().text(), first);
    EXPECT_EQ(document().text().size(), first.size());
    EXPECT_EQ(workbench.focus.current(), &document());
}

TEST_F(Show, DoesNothingWithoutAnImage) {
    workbench.EDIDLoaded = flagFalse;
    workbench.StandardTimingText.create(30);
    ShowReport(workbench, false);
    EXPECT_EQ(workbench.loaded(ScreenId::Document), nullptr);
    EXPECT_EQ(workbench.ReportBlock0Lines.size(), 0);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Show, LeavesTheModifiedFlagAlone) {
    workbench.EDIDModified = flagTrue;
    ShowReport(workbench, false);
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
}

TEST_F(Show, ABuildThatFailsDoesSoInEachOfTheFivePasses) {
    workbench.StandardTimingText.create(30);
    ShowReport(workbench, false);
    EXPECT_EQ(boxes(), Lines(5, "Subscript out of range"));
    EXPECT_THAT(document().text(), HasSubstr("Standard Timing Identification:\r\n         \r\n"));
    EXPECT_THAT(document().text(), Not(HasSubstr("(126)"))) << "it runs to the end of the array";
}

class ShowWithExtension : public Show {
protected:
    ShowWithExtension() {
        workbench.frmCEA_EXT().txtEdit(0).setText("F0");
        workbench.ExtDetailedBlockText.create(7);
        workbench.ExtDetailedBlockText(0) = "A";
        workbench.ExtDtdStart = 100;
        workbench.ExtDtdSlotCount = 0;
        workbench.ExtDtdOffsetText = "100";
        for (std::int16_t* start : {&workbench.VideoBlockStart, &workbench.AudioBlockStart,
                                    &workbench.SpeakerBlockStart, &workbench.VendorBlockStart}) {
            *start = 0;
        }
    }
    bool showsExtensionWith(std::string_view count) {
        set(126, {count});
        ShowReport(workbench, false);
        return document().text().find("EDID Block 1, Bytes 128-255\r\n") != std::string::npos;
    }
};

TEST_F(ShowWithExtension, TheCountIsReadAsADecimalNumber) {
    EXPECT_FALSE(showsExtensionWith("00"));
    EXPECT_TRUE(showsExtensionWith("01"));
    EXPECT_FALSE(showsExtensionWith("0A"));
    EXPECT_TRUE(showsExtensionWith("10"));
    EXPECT_FALSE(showsExtensionWith("FF"));
}

TEST_F(ShowWithExtension, FiveBuildsMoveThePlaceOfTheTimings) {
    EXPECT_TRUE(showsExtensionWith("01"));
    EXPECT_EQ(workbench.ExtDtdStart, 120) << "one and three for the printed block, five times";
    EXPECT_EQ(workbench.ReportExtLines(116), "");
    EXPECT_EQ(workbench.ReportExtLines(119).substr(0, 9), "(100-117)");
    EXPECT_EQ(workbench.ReportExtLines(123), "END REPORT");
}

TEST_F(ShowWithExtension, BlockZeroComesFirst) {
    ASSERT_TRUE(showsExtensionWith("01"));
    const std::string& text = document().text();
    EXPECT_EQ(text.find("EDID Block 0, Bytes 0-127"), text.rfind("EDID Block 0, Bytes 0-127"));
    EXPECT_LT(text.find("  (127)  "), text.find("EDID Block 1"));
    EXPECT_THAT(text, Not(HasSubstr("END REPORT")));
}

TEST_F(Show, ACellThatCallsTheFocusBackDoesSoAtEachAttempt) {
    set(0, {"ABC"});
    ShowReport(workbench, false);
    // Showing the window, then giving it the focus at the end of each pass.
    EXPECT_EQ(boxes(), Lines(6, "Please Make Your Values In Hex"));
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
    EXPECT_THAT(document().text(), HasSubstr("0    |ABC 00"));
}

TEST_F(Show, HiddenCreatesTheWindowWithoutShowingIt) {
    workbench.windows.show(workbench.frmHexCalculator());
    int fired = 0;
    std::function<void()> again = [&] {
        ++fired;
        program.platform.services().eventLoop.startTimer(0, again);
    };
    again();
    ShowReport(workbench, true);
    EXPECT_EQ(fired, 3) << "pending events ran twice";
    EXPECT_EQ(workbench.DocumentOpen, flagTrue);
    EXPECT_EQ(windowNames(), (Lines{"frmEDID", "frmHexCalculator"}));
    EXPECT_FALSE(document().locked());
    EXPECT_THAT(document().text(), HasSubstr("EDID Block 0"));
    EXPECT_NE(workbench.loaded(ScreenId::CeaExt), nullptr) << "brought to the front, and so touched";
}

TEST_F(Show, HiddenMakesAnOpenWindowWritable) {
    ShowReport(workbench, false);
    workbench.focus.moveTo(screen);
    ShowReport(workbench, true);
    EXPECT_FALSE(document().locked());
    EXPECT_NE(workbench.focus.current(), &document());
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr);
}

} // namespace
} // namespace wb::report
