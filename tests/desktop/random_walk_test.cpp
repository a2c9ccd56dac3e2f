#include <QDockWidget>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <functional>
#include <random>

#include "desktop/base/text_codec.h"
#include "desktop/desktop_test.h"
#include "desktop/drag.h"
#include "desktop/tools/fields_dock.h"
#include "desktop/widget_front_end.h"
#include "desktop/windows/child_view.h"
#include "desktop/windows/visibility.h"
#include "script/driver.h"
#include "support/random_user.h"
#include "support/scenarios.h"

namespace wb::test {
namespace {

/// A random user at real widgets who now and then does what no script can say: changes the states of windows, drops
/// texts, pastes and undoes. The program must keep to a few rules whatever happens.
class RandomWalk {
public:
    explicit RandomWalk(unsigned seed)
        : program_(false),
          front_(program_),
          driver_({program_.workbench, program_.platform, front_, [](const std::string&) {}}),
          user_(program_.workbench, seed),
          random_(seed) {
        for (const std::string& line : RandomUser::preparations()) {
            run(line);
        }
    }

    void step() {
        constexpr int actionsOfTheUser = 3; // for each one of the desktop
        for (int i = 0; i < actionsOfTheUser; ++i) {
            for (const std::string& line : user_.next()) {
                run(line);
            }
        }
        if (program_.workbench.windows.modal() == nullptr) {
            actOnTheDesktop();
        }
        expectViewInLine();
    }
    /// What was done last, for a failure's message.
    const std::string& story() const { return story_; }

private:
    using State = void (QWidget::*)();

    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    void note(const std::string& line) {
        constexpr std::size_t longest = 3000;
        story_ = (story_ + line + '\n');
        story_.erase(0, story_.size() > longest ? story_.size() - longest : 0);
    }
    void run(const std::string& line) {
        note(line);
        driver_.runLine(line);
    }

    void actOnTheDesktop() {
        switch (below(8)) {
            case 0:
            case 1:
                changeChild();
                break;
            case 2:
                changeFrame();
                break;
            case 3:
                drop();
                break;
            case 4:
                toggleDock();
                break;
            case 5:
                searchFields();
                break;
            default:
                pressEditKey();
                break;
        }
    }

    void changeChild() {
        const auto children = program_.workbench.windows.children();
        if (children.empty()) {
            return;
        }
        const Screen* screen = children[static_cast<std::size_t>(below(static_cast<int>(children.size())))];
        QWidget& window = program_.window(*screen);
        change(window, std::string(screen->name()));
    }
    void changeFrame() {
        QWidget& window = program_.frame().window();
        change(window, "frmMain");
        window.showNormal(); // behind a minimised one nothing can be reached
        DesktopProgram::settle();
    }
    /// No change of a window's state moves the focus or touches a cell.
    void change(QWidget& window, const std::string& name) {
        constexpr std::array<State, 3> states = {&QWidget::showMaximized, &QWidget::showMinimized,
                                                 &QWidget::showNormal};
        constexpr std::array<const char*, 3> names = {"maximise ", "minimise ", "restore "};
        const auto state = static_cast<std::size_t>(below(static_cast<int>(states.size())));
        note(names[state] + name);
        const bool isActive = program_.workbench.windows.activeChild() == nullptr ||
                              &program_.window(*program_.workbench.windows.activeChild()) == &window ||
                              window.isWindow();
        const Control* focus = program_.workbench.focus.current();
        const std::string before = cells();
        (window.*states[state])();
        DesktopProgram::settle();
        if (isActive) {
            EXPECT_EQ(program_.workbench.focus.current(), focus) << story_;
            EXPECT_EQ(cells(), before) << story_;
        }
    }

    void drop() {
        const std::vector<Control*> boxes = shownBoxes();
        if (boxes.empty()) {
            return;
        }
        const Control& box = *boxes[static_cast<std::size_t>(below(static_cast<int>(boxes.size())))];
        note("drop on " + box.fullName());
        const std::string before = cells();
        const bool closed = box.name() == "txtEdit" || box.locked();
        EXPECT_FALSE(dropText(*program_.widget(box), "dropped") && closed) << story_;
        EXPECT_EQ(cells(), before) << story_;
    }

    /// Docks open and close without anything of it in the model.
    void toggleDock() {
        const QList<QDockWidget*> docks = program_.frame().window().findChildren<QDockWidget*>();
        QDockWidget& dock = *docks[below(static_cast<int>(docks.size()))];
        note("toggle " + dock.objectName().toStdString());
        expectUnmoved([&dock] { dock.toggleViewAction()->trigger(); });
    }
    /// Typing into the search of the fields is no event of the model; after that a click on a field or Escape.
    void searchFields() {
        constexpr std::array<const char*, 5> texts = {"a", "active", "0", "block", ""};
        auto& dock =
            dynamic_cast<desktop::FieldsDock&>(*program_.frame().window().findChild<QDockWidget*>("dockFields"));
        auto& words = *dock.findChild<QLineEdit*>();
        const char* text = texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
        note(std::string("search ") + text);
        expectUnmoved([&] {
            dock.find();
            words.clear();
            QTest::keyClicks(&words, text);
            DesktopProgram::settle();
            QTest::keyClick(&words, Qt::Key_Escape);
        });
        auto& tree = *dock.findChild<QTreeView*>();
        const QRect lines = tree.viewport()->rect();
        if (below(2) == 0 && lines.height() > 0) {
            const QPoint place(lines.width() / 2, below(lines.height()));
            note("click on the field " + tree.indexAt(place).data().toString().toStdString());
            QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, place);
            DesktopProgram::settle();
        }
    }
    /// Does something that neither moves the focus of the model nor touches a cell.
    void expectUnmoved(const std::function<void()>& act) {
        const Control* focus = program_.workbench.focus.current();
        const std::string before = cells();
        act();
        DesktopProgram::settle();
        EXPECT_EQ(program_.workbench.focus.current(), focus) << story_;
        EXPECT_EQ(cells(), before) << story_;
    }

    void pressEditKey() {
        constexpr std::array<Qt::Key, 5> keys = {Qt::Key_Z, Qt::Key_Y, Qt::Key_Z, Qt::Key_A, Qt::Key_Tab};
        const Qt::Key key = keys[static_cast<std::size_t>(below(static_cast<int>(keys.size())))];
        note("Ctrl+" + std::to_string(key));
        if (QWindow* window = QApplication::focusWindow()) {
            QTest::sendKeyEvent(QTest::Click, window, key, QString(), Qt::ControlModifier);
            QTest::sendKeyEvent(QTest::Release, window, Qt::Key_Control, QString(), Qt::NoModifier);
        }
        DesktopProgram::settle();
    }

    std::vector<Control*> shownBoxes() {
        std::vector<Control*> found;
        for (const Screen* screen : program_.workbench.loadedInOrder()) {
            for (Control* control : screen->controls()) {
                const QWidget* widget = control->kind() == ControlKind::Text ? program_.widget(*control) : nullptr;
                if (widget != nullptr && widget->isVisible() && widget->isEnabled()) {
                    found.push_back(control);
                }
            }
        }
        return found;
    }
    std::string cells() {
        std::string all;
        for (const ScreenId id : {ScreenId::Edid, ScreenId::CeaExt}) {
            if (auto* screen = static_cast<BlockScreen*>(program_.workbench.loaded(id))) {
                for (int i = 0; i < BlockScreen::cellCount; ++i) {
                    all += screen->txtEdit(i).text() + ' ';
                }
            }
        }
        return all;
    }

    /// Boxes show the texts of the model, and Qt's focus is where the model has it, if the user can get there.
    void expectViewInLine() {
        for (const Control* box : shownBoxes()) {
            EXPECT_EQ(program_.widgetAs<QLineEdit>(*box).text(), desktop::toUnicode(box->text()))
                << box->fullName() << '\n'
                << story_;
        }
        const Control* focus = program_.workbench.focus.current();
        QWidget* holder = focus != nullptr ? program_.widget(*focus) : nullptr;
        // A cell that calls the focus back has it even behind a modal screen, where Qt gives it to none.
        if (holder != nullptr && input::reachable(*focus) && desktop::minimisedWindowOf(*holder) == nullptr) {
            EXPECT_EQ(QApplication::focusWidget(), holder) << focus->fullName() << '\n' << story_;
        }
    }

    const ScenarioFolder folder_;
    DesktopProgram program_;
    WidgetFrontEnd front_;
    script::Driver driver_;
    RandomUser user_;
    std::mt19937 random_;
    std::string story_;
};

void walk(unsigned seed) {
    constexpr int steps = 60;
    RandomWalk walk(seed);
    for (int i = 0; i < steps && !testing::Test::HasFailure(); ++i) {
        walk.step();
    }
}

/// Walks one after the other: a few, or with WORKBENCH_WALK_SECONDS as many as begin within that time.
TEST(RandomWalkOverWidgets, KeepsViewAndModelInLine) {
    const int seconds = qEnvironmentVariableIntValue("WORKBENCH_WALK_SECONDS");
    constexpr unsigned few = 8;
    constexpr qint64 milliseconds = 1000;
    QElapsedTimer timer;
    timer.start();
    unsigned seed = 0;
    while ((seconds > 0 ? timer.elapsed() < seconds * milliseconds : seed < few) && !HasFailure()) {
        SCOPED_TRACE(++seed);
        walk(seed);
    }
    RecordProperty("walks", static_cast<int>(seed));
}

} // namespace
} // namespace wb::test
