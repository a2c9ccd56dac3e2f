#include "acquire/base_location.h"

#include <gtest/gtest.h>

#include "acquire/monitors.h"
#include "support/program.h"

namespace wb::acquire {
namespace {

using Lines = std::vector<std::string>;

class BaseLocation : public testing::Test {
protected:
    BaseLocation() { input::choose(program.workbench.frmMain().Windows2000); }

    void enter(const std::string& location) { workbench.frmEDIDREG().Text1.setText(location); }
    bool press(int button) { return input::click(workbench.frmEDIDREG().Command1(button)); }
    bool isUp() { return workbench.loaded(ScreenId::EdidReg) != nullptr; }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(BaseLocation, ShowsTheLocationAndTheNotes) {
    EXPECT_EQ(workbench.windows.modal(), &workbench.frmEDIDREG());
    EXPECT_EQ(workbench.frmEDIDREG().caption(), "Windows 2000 EDID Base Location");
    EXPECT_EQ(workbench.frmEDIDREG().Text1.text(), "SYSTEM\\CurrentControlSet\\Enum\\Display");
    EXPECT_EQ(workbench.frmEDIDREG().Label2.caption(),
              "Please enter in the base location for the Registry setting.\r\n\r\n"
              "An example of a valid entry might look like this(without the quotes)\r\n\r\n"
              "\"SYSTEM\\CurentControlSet\\Enum\\Display\"\r\n\r\n"
              "Note: The program will automatically search all sub keys from this root position and the default "
              "Windows key is preset to (HKEY_LOCAL_MACHINE), so there is no need to add this to the base location");
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDIDREG.Text1");
    EXPECT_FALSE(input::choose(workbench.frmMain().mnuFileNew)) << "it is modal";
}

TEST_F(BaseLocation, SaveKeepsTheTextForThisRun) {
    enter("ELSEWHERE");
    EXPECT_TRUE(press(0));
    EXPECT_FALSE(isUp());
    EXPECT_EQ(workbench.RegBaseLocation, "ELSEWHERE");
    EXPECT_EQ(program.platform.settings["Windows2000RegBaseLocation"], "ELSEWHERE");
    input::choose(workbench.frmMain().Windows2000);
    EXPECT_EQ(workbench.frmEDIDREG().Text1.text(), "ELSEWHERE");
}

TEST_F(BaseLocation, CancelKeepsNothing) {
    enter("ELSEWHERE");
    EXPECT_TRUE(press(1));
    EXPECT_FALSE(isUp());
    EXPECT_EQ(workbench.RegBaseLocation, test::displayKey);
    EXPECT_TRUE(program.platform.settings.empty());
}

TEST_F(BaseLocation, TestTellsWhatIsFound) {
    test::addMonitor(program.platform.registry, "AAA0001", test::block0());
    EXPECT_TRUE(press(2));
    EXPECT_EQ(program.takeBoxes(), Lines{test::displayKey + "\\AAA0001\\4&1\\Device Parameters"});
    EXPECT_TRUE(isUp());
}

TEST_F(BaseLocation, TestOfAWrongRootKeepsIt) {
    enter("WRONG");
    EXPECT_TRUE(press(2));
    EXPECT_EQ(program.takeBoxes(), Lines{"Unable to locate EDID Registry Entry."});
    EXPECT_TRUE(isUp());
    EXPECT_EQ(workbench.RegBaseLocation, "WRONG");
    EXPECT_TRUE(program.platform.settings.empty());
    press(1);
    EXPECT_EQ(workbench.RegBaseLocation, "WRONG");
}

TEST_F(BaseLocation, TestOfARefusedRootTellsBoth) {
    program.platform.registry.refuse("LOCKED");
    enter("LOCKED");
    EXPECT_TRUE(press(2));
    EXPECT_EQ(program.takeBoxes(), (Lines{"Unable to read Registry", "Unable to locate EDID Registry Entry."}));
}

} // namespace
} // namespace wb::acquire
