#include "desktop/base/live_reading.h"

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

class LiveReadingTest : public DesktopTest {
protected:
    LiveReadingTest() {
        live.listen(context, [this] { ++changes; });
    }
    std::string complaint() { return live.complaint().toStdString(); }
    void set(Control& cell, const std::string& text) {
        program.act([&] { cell.setText(text); });
    }

    desktop::LiveReading live{program.workbench};
    QObject context;
    int changes = 0;
};

TEST_F(LiveReadingTest, IsNoneWithoutAnImage) {
    live.noteCall();
    DesktopProgram::settle();
    EXPECT_EQ(live.reading(), nullptr);
    EXPECT_EQ(live.readingBesides(), nullptr);
    EXPECT_EQ(complaint(), "");
    EXPECT_EQ(changes, 0);
}

TEST_F(LiveReadingTest, IsMadeOnceForEachReturnToTheEventLoop) {
    program.openSample("zarqo-z40.bin");
    for (int i = 0; i < 3; ++i) {
        live.noteCall();
        edid().txtEdit(21).setText(i == 2 ? "28" : "27");
        EXPECT_EQ(live.reading(), nullptr) << "not before the event loop";
    }
    DesktopProgram::settle();
    ASSERT_NE(live.reading(), nullptr);
    EXPECT_EQ(live.reading()->image.byte(21), 0x28);
    EXPECT_EQ(live.reading()->blocks.size(), 2U);
    EXPECT_EQ(changes, 1);
    live.noteCall();
    DesktopProgram::settle();
    EXPECT_EQ(changes, 1) << "nothing has changed";
}

TEST_F(LiveReadingTest, NamesTheFirstCellThatHoldsNoByte) {
    program.openSample("zarqo-z40.bin");
    const desktop::LiveReading& shown = program.view.liveReading();
    for (const char* text : {"", "5", "7", "ZZ", "-1", "+1", " 1", "123"}) {
        set(edid().txtEdit(30), text);
        EXPECT_EQ(shown.reading(), nullptr) << text;
        EXPECT_EQ(shown.complaint().toStdString(), std::string("Cell 30 of block 0 holds \"") + text +
                                                       "\", which is not a byte of two hexadecimal digits.");
        ASSERT_NE(shown.readingBesides(), nullptr);
        EXPECT_EQ(shown.readingBesides()->image.byte(30), 0);
    }
    set(edid().txtEdit(30), "a5");
    ASSERT_NE(shown.reading(), nullptr);
    EXPECT_EQ(shown.reading()->image.byte(30), 0xA5);
    set(cea().txtEdit(7), "??");
    EXPECT_EQ(shown.complaint().toStdString(),
              "Cell 7 of the extension block holds \"\?\?\", which is not a byte of two hexadecimal digits.");
}

TEST_F(LiveReadingTest, CountsTheExtensionWhereByte126AnnouncesOne) {
    program.openSample("zarqo-z40.bin");
    const desktop::LiveReading& shown = program.view.liveReading();
    EXPECT_EQ(shown.reading()->image.blockCount(), 2U);
    set(edid().txtEdit(126), "00"); // its screen stays
    EXPECT_EQ(shown.reading()->image.blockCount(), 1U);
    set(edid().txtEdit(126), "02");
    EXPECT_EQ(shown.reading()->image.blockCount(), 2U);
    EXPECT_EQ(shown.reading()->blocks.size(), 3U) << "one that is announced and missing";
}

TEST_F(LiveReadingTest, CountsTheBlocksThatHaveNoCells) {
    program.openSample("zarqo-z40.bin");
    const desktop::LiveReading& shown = static_cast<desktop::UserActions&>(program.view).liveReading();
    const std::string third = '\x40' + std::string(127, '\x55');
    program.act([&] { program.workbench.LoadedBytes = std::string(256, '\0') + third; });
    ASSERT_EQ(shown.reading()->image.blockCount(), 3U);
    EXPECT_EQ(shown.reading()->image.byte(0x100), 0x40);
    EXPECT_EQ(shown.reading()->image.byte(0x17F), 0x55);
    EXPECT_EQ(shown.reading()->image.byte(54), 0x02) << "what has cells is read from these";
}

TEST_F(LiveReadingTest, TellsNobodyWhoHasGone) {
    int told = 0;
    {
        QObject shortLived;
        live.listen(shortLived, [&told] { ++told; });
    }
    program.openSample("zarqo-z40.bin");
    live.noteCall();
    DesktopProgram::settle();
    EXPECT_EQ(told, 0);
    EXPECT_EQ(changes, 1);
}

TEST_F(LiveReadingTest, KnowsWhichBytesSaySomethingElse) {
    program.openSample("zarqo-z40.bin");
    const desktop::LiveReading& shown = program.view.liveReading();
    const auto changed = [&] {
        std::vector<std::size_t> numbers;
        for (std::size_t byte = 0; byte < 256; ++byte) {
            if (shown.changed(byte)) {
                numbers.push_back(byte);
            }
        }
        return numbers;
    };
    set(edid().txtEdit(54), "ff"); // the clock; the sum is not brought in line by this
    EXPECT_EQ(changed(), (std::vector<std::size_t>{54, 55}));
    set(edid().txtEdit(54), "FF");
    EXPECT_EQ(changed(), (std::vector<std::size_t>{54})) << "the same byte in another cell's text";
    set(edid().txtEdit(126), "00");
    EXPECT_TRUE(shown.changed(200)) << "which is no more in the image";
    EXPECT_FALSE(shown.changed(60));
}

TEST_F(LiveReadingTest, TellsAgainAfterItWasToForget) {
    program.openSample("zarqo-z40.bin");
    live.noteCall();
    DesktopProgram::settle();
    live.forget();
    live.noteCall();
    DesktopProgram::settle();
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(live.changed(0));
    EXPECT_TRUE(live.changed(255));
}

} // namespace
} // namespace wb::test
