#include <QDockWidget>
#include <QEvent>
#include <QLabel>
#include <QTreeView>
#include <map>

#include "desktop/desktop_test.h"

namespace wb::test {
namespace {

/// Counts how often each widget is painted.
class Paintings : public QObject {
public:
    Paintings() { qApp->installEventFilter(this); }
    int of(const QWidget& widget) const {
        const auto found = counts_.find(&widget);
        return found == counts_.end() ? 0 : found->second;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++counts_[watched];
        }
        return false;
    }

private:
    std::map<const QObject*, int> counts_;
};

/// What is painted after a key.
class Painting : public DesktopTest {
protected:
    Painting() {
        program.openSample("zarqo-z40.bin"); // which leaves Modify EDID on
        focus(edid().txtEdit(54));
    }

    QMainWindow& window() { return program.frame().window(); }
    QDockWidget& showDock(const char* name) {
        auto& dock = *window().findChild<QDockWidget*>(name);
        dock.show();
        DesktopProgram::settle();
        return dock;
    }
    const QWidget& picture() { return *program.widget(edid().Hints(9))->findChild<QWidget*>("picture"); }
};

TEST_F(Painting, LeavesThePictureAsItIsOnAStepInsideItsField) {
    ASSERT_TRUE(picture().isVisible());
    const Paintings paintings;
    press(Qt::Key_Tab);
    ASSERT_EQ(focused(), "frmEDID.txtEdit(55)");
    EXPECT_EQ(paintings.of(picture()), 0);
    EXPECT_GT(paintings.of(*program.widget(edid().txtEdit(55))), 0);
}

TEST_F(Painting, LeavesLinesWhereTheyAreWhileANoteComesAndGoes) {
    const QDockWidget& dock = showDock("dockFields");
    const auto& tree = *dock.findChild<QTreeView*>();
    type("2"); // a cell without a byte, of which the dock tells
    const QRect place = tree.geometry();
    const Paintings paintings;
    type("7");
    EXPECT_EQ(tree.geometry(), place);
    EXPECT_EQ(paintings.of(tree), 0) << "its frame, which is painted when it changes its size";
    type("3");
    EXPECT_EQ(tree.geometry(), place);
}

} // namespace
} // namespace wb::test
