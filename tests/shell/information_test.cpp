#include "shell/information.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/version.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb::shell {
namespace {

using platform::RegistryType;
using testing::HasSubstr;
using Lines = std::vector<std::string>;

const std::string unavailable = "System Information Is Unavailable At This Time";
const std::string toolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
const std::string locationKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

class Information : public testing::Test {
protected:
    void store(const std::string& key, const std::string& name, const std::string& data,
               RegistryType type = RegistryType::Text) {
        program.platform.registry.setValue(key, {.name = name, .type = type, .data = data});
    }
    void start() {
        input::choose(workbench.frmMain().mnuHelpAbout);
        input::click(workbench.frmAbout().cmdSysInfo);
    }
    std::string value(const std::string& name) {
        std::string text = "left over";
        const bool found = GetKeyValue(workbench, "KEY", name, text);
        return found ? "found " + text : "none " + text;
    }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(Information, HelpTellsWhereTheStandardsAre) {
    input::choose(workbench.frmMain().Info);
    EXPECT_EQ(workbench.windows.modal(), &workbench.frmHelp());
    EXPECT_TRUE(workbench.frmHelp().Label1.caption().starts_with(
        "For detailed information regarding the use of this program, please refer to the VESA\xAE"));
    EXPECT_TRUE(workbench.frmHelp().Label3.caption().starts_with("Video Electronics Standards Association\r\n"));
    EXPECT_TRUE(workbench.frmHelp().Label4.caption().starts_with("Electronic Industries Alliance\r\n"));
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmHelp.Command1");
    input::click(workbench.frmHelp().Command1);
    EXPECT_EQ(workbench.loaded(ScreenId::Help), nullptr);
}

TEST_F(Information, AboutShowsVersionAndCredits) {
    input::choose(workbench.frmMain().mnuHelpAbout);
    const FrmAbout& screen = workbench.frmAbout();
    EXPECT_EQ(workbench.windows.modal(), &screen);
    EXPECT_EQ(screen.caption(), "EDID / DDC Field Workbench ");
    EXPECT_EQ(screen.lblVersion.caption(), std::string("Version ") + programVersion());
    EXPECT_TRUE(screen.lblWrittenby.caption().starts_with("Written By\r\nHalvorine Corporation\r\n"));
    EXPECT_THAT(screen.lblWrittenby.caption(), HasSubstr("\r\nCopyright "));
    EXPECT_THAT(screen.lblWrittenby.caption(), HasSubstr("\r\nModified: "));
    const std::string& address = screen.lblAddress.caption();
    EXPECT_THAT(address, HasSubstr("\r\n"));
    EXPECT_EQ(address.find("\r\n"), address.rfind("\r\n")) << "two lines";
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmAbout.cmdOK");
    input::click(workbench.frmAbout().cmdOK);
    EXPECT_EQ(workbench.loaded(ScreenId::About), nullptr);
}

TEST(Version, HasThreeNumbers) {
    EXPECT_EQ(std::string(programVersion()).find_first_not_of("0123456789."), std::string::npos);
    const std::string version = programVersion();
    EXPECT_EQ(std::count(version.begin(), version.end(), '.'), 2);
}

TEST_F(Information, TheToolIsRunFromItsOwnPath) {
    store(toolKey, "PATH", std::string("C:\\Tools\\MSINFO32.EXE\0", 22));
    start();
    EXPECT_EQ(program.takeLines(), Lines{"[shell] \"C:\\\\Tools\\\\MSINFO32.EXE\" \"\" folder=\"\""});
    EXPECT_TRUE(program.boxes.empty());
}

TEST_F(Information, TheToolIsLookedForInItsFolder) {
    const test::TemporaryFolder folder;
    const std::string place = folder.file("tools");
    store(locationKey, "MSINFO", place);
    start();
    EXPECT_EQ(program.takeBoxes(), Lines{unavailable}) << "there is no such file";
    folder.write("tools\\MSINFO32.EXE", "");
    input::click(workbench.frmAbout().cmdSysInfo);
    EXPECT_TRUE(program.boxes.empty());
    ASSERT_EQ(program.lines.size(), 2U);
    EXPECT_TRUE(program.lines[1].starts_with("[shell] "));
    EXPECT_THAT(program.lines[1], HasSubstr("tools\\\\MSINFO32.EXE\""));
}

TEST_F(Information, WithoutAToolABoxSaysSo) {
    start();
    EXPECT_EQ(program.takeBoxes(), Lines{unavailable});
}

/// A program whose shell keeps the last command and starts what it is told to.
class InformationShell : public Information {
protected:
    class RecordingShell : public platform::Shell {
    public:
        bool start(const platform::ShellCommand& command) override {
            last = command;
            return starts;
        }
        bool starts = true;
        platform::ShellCommand last;
    };

    RecordingShell shell;
    const platform::Services& inner = program.platform.services();
    platform::Services services{inner.messageBoxes, inner.dialogs,         inner.printer,    inner.settings,
                                inner.registry,     inner.operatingSystem, inner.edidReader, shell,
                                inner.clock,        inner.eventLoop,       inner.arranger,   ""};
    Workbench other{services, wiring()};
};

TEST_F(InformationShell, ShowsTheToolsWindow) {
    store(toolKey, "PATH", "tool");
    StartSysInfo(other);
    EXPECT_EQ(shell.last.program, "tool");
    EXPECT_FALSE(shell.last.hidden);
    EXPECT_TRUE(program.boxes.empty());
}

TEST_F(InformationShell, AToolThatCannotBeStartedIsAFailure) {
    shell.starts = false;
    store(toolKey, "PATH", "tool");
    StartSysInfo(other);
    EXPECT_EQ(program.takeBoxes(), Lines{"File not found"}) << "and no other place is looked at";
    program.platform.registry.clear();
    const test::TemporaryFolder folder;
    store(locationKey, "MSINFO", folder.file("tools"));
    folder.write("tools\\MSINFO32.EXE", "");
    StartSysInfo(other);
    EXPECT_EQ(program.takeBoxes(), Lines{"File not found"});
}

TEST_F(Information, AKeyValueIsTextAsItStands) {
    store("KEY", "text", std::string("text\0", 5));
    store("KEY", "open", "no end");
    store("KEY", "two", std::string("x\0\0", 3));
    store("KEY", "empty", "");
    store("KEY", "binary", "\x01\x02", RegistryType::Binary);
    store("KEY", "expandable", std::string("%X%\0", 4), RegistryType::ExpandableText);
    EXPECT_EQ(value("text"), "found text");
    EXPECT_EQ(value("TEXT"), "found text");
    EXPECT_EQ(value("open"), "found no end");
    EXPECT_EQ(value("two"), std::string("found x\0", 8)) << "one character is cut";
    EXPECT_EQ(value("empty"), "found ");
    EXPECT_EQ(value("binary"), "found \x01\x02");
    EXPECT_EQ(value("expandable"), "found %X%");
}

TEST_F(Information, ANumberBecomesItsDecimalText) {
    store("KEY", "small", std::string("\x12\0\0\0", 4), RegistryType::Number32);
    store("KEY", "gaps", std::string("\x02\0\x01\0", 4), RegistryType::Number32);
    store("KEY", "large", "\xFF\xFF\xFF\xFF", RegistryType::Number32);
    store("KEY", "zero", std::string(4, '\0'), RegistryType::Number32);
    EXPECT_EQ(value("small"), "found 18");
    EXPECT_EQ(value("gaps"), "found 65538");
    EXPECT_EQ(value("large"), "found 4294967295");
    EXPECT_EQ(value("zero"), "found 0");
}

TEST_F(Information, WhatCannotBeReadIsEmpty) {
    EXPECT_EQ(value("missing"), "none ");
    store("KEY", "long", std::string(1025, 'x'));
    store("KEY", "just", std::string(1024, 'x'));
    EXPECT_EQ(value("missing"), "none ");
    EXPECT_EQ(value("long"), "none ");
    EXPECT_EQ(value("just"), "found " + std::string(1024, 'x'));
}

} // namespace
} // namespace wb::shell
