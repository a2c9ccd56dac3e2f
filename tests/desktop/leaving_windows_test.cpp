#include <QPointer>
#include <QScrollArea>

#include "desktop/desktop_test.h"
#include "desktop/drawing/palettes.h"

namespace wb::test {
namespace {

/// The window of a screen that has gone lives until the program is back in the event loop: events of it may be on their
/// way. The toolkit treats it like any other until then.
class LeavingWindows : public DesktopTest {
protected:
    LeavingWindows() { program.openSample("zarqo-z40.bin"); }

    /// Closes a screen and hands out the page of its window, which waits to be deleted.
    QPointer<QWidget> leave(const Screen& screen) {
        const QPointer<QWidget> page = program.window(screen).findChild<QScrollArea*>()->widget();
        const ScreenId id = screen.id();
        program.workbench.EDIDModified = flagFalse; // else it would ask whether to save
        program.gate.run(
            [this, id] { program.workbench.runAction([this, id] { program.workbench.windows.unload(id); }); });
        EXPECT_EQ(program.workbench.loaded(id), nullptr);
        EXPECT_NE(page, nullptr);
        return page;
    }
};

TEST_F(LeavingWindows, BearOtherColours) {
    const QPointer<QWidget> page = leave(edid());
    QApplication::setPalette(desktop::darkPalette());
    DesktopProgram::settle();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->palette().color(QPalette::Base), desktop::darkPalette().color(QPalette::Base));
    QApplication::setPalette(QPalette());
    DesktopProgram::settle();
}

// The address sanitizer sees a page that asks the screen.
TEST_F(LeavingWindows, TellTheSizeThatTheyHad) {
    program.act([&] { input::click(frame().Command4); });
    const QSize wanted = program.window(cea()).findChild<QScrollArea*>()->widget()->sizeHint();
    const QPointer<QWidget> page = leave(cea());
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->sizeHint(), wanted);
}

} // namespace
} // namespace wb::test
