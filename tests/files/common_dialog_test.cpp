#include "files/common_dialog.h"

#include <gtest/gtest.h>

#include "support/program.h"

namespace wb::files {
namespace {

/// Records what each file dialog is shown with, and gives the same name each time.
class RecordingDialogs : public platform::Dialogs {
public:
    std::string openFile(const platform::FileDialogRequest& request) override { return ask("open", request); }
    std::string saveFile(const platform::FileDialogRequest& request) override { return ask("save", request); }
    bool print(const std::string&, int) override { return false; }
    bool pageSetup(const std::string&) override { return false; }

    std::string name;
    std::vector<std::string> kinds;
    std::vector<platform::FileDialogRequest> requests;

private:
    std::string ask(const char* kind, const platform::FileDialogRequest& request) {
        kinds.emplace_back(kind);
        requests.push_back(request);
        return name;
    }
};

class CommonDialog : public testing::Test {
protected:
    CommonDialog() {
        shell::Main(workbench);
        input::choose(workbench.frmMain().mnuFileNew);
    }
    const platform::FileDialogRequest& last() { return dialogs.requests.back(); }

    platform::headless::HeadlessPlatform headless;
    RecordingDialogs dialogs;
    const platform::Services& inner = headless.services();
    platform::Services services{inner.messageBoxes,    dialogs,          inner.printer, inner.settings, inner.registry,
                                inner.operatingSystem, inner.edidReader, inner.shell,   inner.clock,    inner.eventLoop,
                                inner.arranger,        "program/folder"};
    Workbench workbench{services, shell::wiring()};
};

TEST_F(CommonDialog, OpenStartsInTheFolderOfTheProgram) {
    input::choose(workbench.frmMain().mnuFileOpen);
    EXPECT_EQ(dialogs.kinds, std::vector<std::string>{"open"});
    EXPECT_EQ(last().title, "Open");
    EXPECT_EQ(last().folder, "program/folder");
    EXPECT_EQ(last().filter, "EDID/DDC Data Files (*.DAT)|*.DAT");
}

TEST_F(CommonDialog, SaveAsStartsInTheFolderOfTheProgram) {
    input::choose(workbench.frmMain().mnuFileSaveAs);
    EXPECT_EQ(dialogs.kinds, std::vector<std::string>{"save"});
    EXPECT_EQ(last().title, "Save As");
    EXPECT_EQ(last().folder, "program/folder");
    EXPECT_EQ(last().filter, "All Files (*.*)|*.*");
}

TEST_F(CommonDialog, KeepsItsFilterAndNameBetweenCalls) {
    dialogs.name = "a.DAT";
    EXPECT_EQ(askOpenName(workbench, "Open", "one|*.1"), "a.DAT");
    EXPECT_EQ(last().name, "");
    EXPECT_EQ(workbench.frmMain().dialogFilter, "one|*.1");
    dialogs.name = "";
    EXPECT_EQ(askSaveName(workbench, "Save", "two|*.2"), "");
    EXPECT_EQ(last().name, "a.DAT");
    EXPECT_EQ(workbench.frmMain().dialogFilter, "two|*.2");
}

} // namespace
} // namespace wb::files
