#include <gtest/gtest.h>

#include <optional>

#include "core/input.h"
#include "support/model_session.h"
#include "support/random_user.h"

namespace wb::test {
namespace {

/// What a hexadecimal digit counts in a cell: any other character counts its distance from "0".
int digitValue(char c) {
    const char upper = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : static_cast<unsigned char>(c) - '0';
}

/// The byte of a cell's text, where it has one.
std::optional<int> byteOfText(const std::string& text) {
    const int high = text.empty() ? 0 : digitValue(text[0]);
    const int low = text.size() < 2 ? 0 : digitValue(text[1]);
    const int byte = high * 16 + low;
    return byte >= 0 && byte <= 255 ? std::optional(byte) : std::nullopt;
}

struct Sum {
    int bytes = 0;
    bool readable = true;

    std::string checkSum() const {
        constexpr const char* digits = "0123456789ABCDEF";
        const int rest = (256 - bytes % 256) % 256;
        return {digits[rest / 16], digits[rest % 16]};
    }
};

/// The sum of all cells but the last; one that has no byte counts as nothing.
Sum sumOf(BlockScreen& screen) {
    Sum sum;
    for (int i = 0; i < 127; ++i) {
        const std::optional<int> byte = byteOfText(screen.txtEdit(i).text());
        sum.bytes += byte.value_or(0);
        sum.readable = sum.readable && byte.has_value();
    }
    return sum;
}

/// How often the focus came to a cell whose block then had to have a check sum that fits.
struct Arrivals {
    int block0 = 0;
    int extension = 0;
};

/// One session of a random user, looked at after each line.
class RandomSession {
public:
    RandomSession(unsigned seed, Arrivals& arrivals)
        : workbench_(session_.workbench), user_(workbench_, seed), arrivals_(arrivals) {
        for (const std::string& line : RandomUser::preparations()) {
            run(line);
        }
    }

    /// The lines so far, which can be run again as a script.
    const std::string& story() const { return story_; }

    void act() {
        for (const std::string& line : user_.next()) {
            run(line);
        }
        expectExclusiveOptions();
    }

    void leave() {
        run("menu mnuFileExit");
        EXPECT_TRUE(workbench_.ended || workbench_.windows.modal() != nullptr);
    }

private:
    void run(const std::string& line) {
        const Control* const before = workbench_.focus.current();
        story_ += line + '\n';
        shown_ = session_.run(line);
        if (workbench_.ended) {
            return;
        }
        expectAnswers();
        if (line != "menu mnuFileNew" && line != "toolbar \"New\"") { // a new image has no check sum yet
            expectChecksum(before);
        }
    }

    void expectAnswers() {
        const Control* focused = workbench_.focus.current();
        if (focused != nullptr) {
            EXPECT_EQ(workbench_.loaded(focused->screen().id()), &focused->screen());
            EXPECT_TRUE(focused->screen().shown()) << focused->fullName();
        }
        for (const Screen* child : workbench_.windows.children()) {
            EXPECT_TRUE(child->shown()) << child->name();
            EXPECT_EQ(workbench_.loaded(child->id()), child);
        }
        const Screen* modal = workbench_.windows.modal();
        EXPECT_TRUE(modal == nullptr ? input::reachable(workbench_.frmMain().mnuFileNew) : input::reachable(*modal));
    }

    void expectExclusiveOptions() {
        for (const Screen* screen : workbench_.loadedInOrder()) {
            for (const Control* control : screen->controls()) {
                if (control->kind() == ControlKind::Option && control->selected()) {
                    EXPECT_EQ(control->array()->firstSelected(), control->index()) << control->fullName();
                }
            }
        }
    }

    /// Where the focus has come to rest in a cell, with Modify EDID on, the check sum of that block fits: the visit
    /// has worked it out from all that was written before. A cell that is no byte spares block 0 a new check sum, and
    /// counts as nothing in the other block.
    void expectChecksum(const Control* before) {
        const Control* cell = workbench_.focus.current();
        if (cell == nullptr || cell == before || cell->name() != "txtEdit" || workbench_.ModifyEDIDOn == flagFalse) {
            return;
        }
        auto& screen = static_cast<BlockScreen&>(cell->screen());
        const bool isExtension = screen.id() == ScreenId::CeaExt;
        const Sum sum = sumOf(screen);
        if (sum.readable || isExtension) {
            ++(isExtension ? arrivals_.extension : arrivals_.block0);
            EXPECT_EQ(screen.txtEdit(127).text(), sum.checkSum()) << screen.name();
            EXPECT_EQ(workbench_.Block0ChecksumLast, screen.txtEdit(127).text());
        }
        if (shown_.find("[box]") == std::string::npos) {
            EXPECT_EQ(screen.InFocusDispatch, flagFalse);
        }
    }

    ModelSession session_;
    Workbench& workbench_;
    RandomUser user_;
    Arrivals& arrivals_;
    std::string story_;
    std::string shown_; ///< what the last line left in the trace
};

TEST(RandomUser, LeavesAProgramThatAnswersAndChecksumsThatFit) {
    constexpr unsigned sessions = 150;
    constexpr int actions = 400;
    Arrivals arrivals;
    for (unsigned seed = 1; seed <= sessions; ++seed) {
        RandomSession session(seed, arrivals);
        for (int i = 0; i < actions && !testing::Test::HasFailure(); ++i) {
            session.act();
        }
        session.leave();
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << '\n' << session.story();
    }
    EXPECT_GT(arrivals.block0, 5000) << "the check sum was looked at";
    EXPECT_GT(arrivals.extension, 1000);
}

} // namespace
} // namespace wb::test
