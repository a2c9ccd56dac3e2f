#include <random>

#include "block0/editor.h"
#include "core/edid_image.h"
#include "core/text.h"
#include "files/image_loading.h"

namespace wb::test {
namespace {

/// A user who does anything, anywhere on the screen of block 0, in any order.
class RandomUser {
public:
    RandomUser(Program& program, unsigned seed) : program_(program), random_(seed) {}

    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    /// A new image of random bytes, half of whose blocks are descriptors.
    void loadImage() {
        Workbench& workbench = program_.workbench;
        for (int i = 0; i < 256; ++i) {
            workbench.EDIDCells(i) = ByteToHex2(below(256));
        }
        constexpr const char* tags[] = {"FF", "FE", "FD", "FC", "FB", "FA", "10", "00"};
        for (const int base : {54, 72, 90, 108}) {
            if (below(2) == 0) {
                for (int i = 0; i <= 2; ++i) {
                    workbench.EDIDCells(base + i) = "00";
                }
                workbench.EDIDCells(base + 3) = tags[below(std::size(tags))];
                if (below(2) == 0) {
                    workbench.EDIDCells(base + 10) = "00";
                }
            }
        }
        workbench.runAction([&] { files::LoadBlock0Cells(workbench); });
    }

    void act() {
        switch (below(12)) {
            case 0:
            case 1:
            case 2:
                input::moveFocus(screen().txtEdit(below(BlockScreen::cellCount)));
                break;
            case 3:
                input::doubleClick(screen().Hints(below(14)));
                break;
            case 4:
                press();
                break;
            case 5:
            case 6:
                clickAnything();
                break;
            case 7:
                program_.type(text());
                break;
            case 8:
                input::enter(program_.workbench);
                break;
            default:
                enterAnywhere();
                break;
        }
    }

private:
    FrmEdid& screen() { return program_.workbench.frmEDID(); }

    void press() {
        FrmMain& frame = program_.workbench.frmMain();
        Control* const buttons[] = {&frame.Command1, &frame.Command2, &frame.Command2, &frame.Command3};
        input::click(*buttons[below(std::size(buttons))]);
    }

    Control* reachable(bool textsOnly) {
        std::vector<Control*> within;
        for (Control* control : screen().controls()) {
            const bool isCell = control->name() == "txtEdit";
            if (input::reachable(*control) && !isCell && (!textsOnly || control->kind() == ControlKind::Text)) {
                within.push_back(control);
            }
        }
        return within.empty() ? nullptr : within[static_cast<std::size_t>(below(static_cast<int>(within.size())))];
    }

    void clickAnything() {
        if (Control* control = reachable(false); control != nullptr) {
            input::click(*control);
        }
    }

    void enterAnywhere() {
        if (Control* box = reachable(true); box != nullptr && input::moveFocus(*box)) {
            program_.type(text());
            input::enter(program_.workbench);
        }
    }

    std::string text() {
        constexpr const char* texts[] = {"0",     "1",
                                         "5",     "60",
                                         "255",   "256",
                                         "1024",  "2600",
                                         "4660",  "65534",
                                         "65535", "99999",
                                         "-1",    "-99999",
                                         "0.5",   "0.64",
                                         "1.0",   "2.2",
                                         "3.55",  "1e9",
                                         "1e999", "&HFF",
                                         "ABC",   "Name",
                                         "00",    "01",
                                         "FF",    "FA",
                                         "FB",    "FD",
                                         "fc",    "7",
                                         "1990",  "9999",
                                         "a b",   ".",
                                         "x",     "1234567890123456"};
        constexpr const char* badTexts[] = {"ZZ", "ABC", "~", "\xFF\xFE"};
        return below(200) == 0 ? badTexts[below(std::size(badTexts))] : texts[below(std::size(texts))];
    }

    Program& program_;
    std::mt19937 random_;
};

class RandomActions : public Editor {
protected:
    std::string rightChecksum() {
        int sum = 0;
        for (int i = 0; i <= 126; ++i) {
            sum += byteAt(screen(), i);
        }
        return checksumTextFor(sum % 256);
    }

    /// A new image without extension in place of the one there is.
    void startAnew() {
        using platform::Answer;
        if (workbench.EDIDModified != flagFalse) {
            program.platform.queueAnswer(Answer::No); // save changes?
        }
        program.platform.queueAnswer(Answer::Yes); // sure?
        program.platform.queueAnswer(Answer::No);  // extension?
        ASSERT_TRUE(input::choose(frame().mnuFileNew));
    }

    void expectExclusiveOptions() {
        for (Control* control : screen().controls()) {
            if (control->kind() == ControlKind::Option && control->selected()) {
                ControlArray& options = *control->array();
                EXPECT_EQ(options.firstSelected(), control->index()) << control->fullName();
            }
        }
    }
};

TEST_F(RandomActions, LeaveAProgramThatAnswersAndAChecksumThatFits) {
    constexpr int actions = 4000;
    constexpr int actionsOfAnImage = 60;
    int arrivals = 0;
    for (unsigned seed = 1; seed <= 5; ++seed) {
        RandomUser user(program, seed);
        for (int i = 0; i < actions; ++i) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", action " + std::to_string(i));
            if (i % actionsOfAnImage == 0) {
                user.loadImage();
            }
            const Control* const before = workbench.focus.current();
            program.takeBoxes();
            user.act();
            const Control* const after = workbench.focus.current();
            ASSERT_NE(after, nullptr);
            const bool arrived = after != before && after->name() == "txtEdit" && program.takeBoxes().empty();
            if (arrived && workbench.ModifyEDIDOn != flagFalse) {
                ++arrivals;
                ASSERT_EQ(cell(127), rightChecksum());
                ASSERT_EQ(workbench.Block0ChecksumLast, cell(127));
                ASSERT_EQ(screen().InFocusDispatch, flagFalse);
            }
            if (i % actionsOfAnImage == actionsOfAnImage - 1) {
                expectExclusiveOptions();
                startAnew();
                ASSERT_EQ(focused(), cellName(0));
            }
        }
    }
    EXPECT_GT(arrivals, 1000) << "the check sum was looked at";
}

} // namespace
} // namespace wb::test
