#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDockWidget>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <ctime>
#include <functional>
#include <limits>
#include <optional>

#include "core/input.h"
#include "desktop/desktop_program.h"

/// From an action of the user to the painted window, on real widgets without a display. Time is that of the processor,
/// and "least" the shortest of a run in milliseconds: what other work of the machine touches least.
namespace wb {
namespace {

constexpr QSize window4k(3840, 2160);
constexpr const char* television = WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.DAT";
constexpr const char* display = WORKBENCH_SOURCE_DIR "/samples/brindleco-b24w.DAT";

class PaintCounter : public QObject {
public:
    PaintCounter() { qApp->installEventFilter(this); }
    int painted = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        painted += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// The program at work in a large window: an image open and unlocked, every dock on view.
class Desk : public test::DesktopProgram {
public:
    Desk() {
        resize();
        openSample("zarqo-z40.bin"); // which leaves Modify EDID on
        for (auto* dock : window().findChildren<QDockWidget*>()) {
            dock->show();
        }
        settle();
    }

    using DesktopProgram::window;
    QMainWindow& window() const { return frame().window(); }
    FrmEdid& edid() { return workbench.frmEDID(); }
    void resize() const {
        window().resize(window4k);
        settle();
    }
    void focus(Control& control) {
        act([&] { input::moveFocus(control); });
    }
    void press(Qt::Key key, const QString& text = {}) const {
        QTest::sendKeyEvent(QTest::Click, window().windowHandle(), key, text, Qt::NoModifier);
        settle();
    }
    void type(const QString& text) const {
        for (const QChar character : text) {
            press(static_cast<Qt::Key>(character.unicode()), character);
        }
    }
    void showReport() {
        act([&] { input::click(workbench.frmMain().Command1); });
        focus(edid().txtEdit(0));
    }
};

/// Runs the action as often as the benchmark wants, each time after the preparation, which does not count.
void measure(benchmark::State& state, const std::function<void()>& prepare, const std::function<void()>& action) {
    PaintCounter counter;
    double least = std::numeric_limits<double>::max();
    for (auto _ : state) {
        prepare();
        counter.painted = 0;
        const std::clock_t start = std::clock();
        action();
        const double elapsed = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        state.SetIterationTime(elapsed);
        least = std::min(least, elapsed);
        if (counter.painted == 0) {
            state.SkipWithError("nothing was painted");
        }
    }
    state.counters["least"] = least * 1000;
}

/// What the others can be held against: all that the window shows, painted once.
void paintWindow(benchmark::State& state) {
    const Desk desk;
    measure(
        state, [] {}, [&] { desk.window().repaint(); });
}

/// The first digit leaves the cell without a byte, the second gives it one.
void typeDigit(benchmark::State& state, int digit) {
    Desk desk;
    bool other = false;
    const auto prepare = [&] {
        desk.focus(desk.edid().txtEdit(0));
        desk.focus(desk.edid().txtEdit(54)); // the clock of a detailed timing
        other = !other;
        desk.type(QString(digit - 1, other ? '1' : '2'));
    };
    measure(state, prepare, [&] { desk.type(other ? "1" : "2"); });
}

void enterInPanel(benchmark::State& state) {
    Desk desk;
    bool other = false;
    const auto prepare = [&] {
        desk.focus(desk.edid().txtEdit(56)); // which selects the active width
        desk.focus(desk.edid().DTInput);     // and this all that is in it
        other = !other;
        desk.type(other ? "1900" : "1920"); // the sample has 1920
    };
    measure(state, prepare, [&] { desk.press(Qt::Key_Return, "\r"); });
}

void moveByTab(benchmark::State& state, int from) {
    Desk desk;
    measure(
        state, [&] { desk.focus(desk.edid().txtEdit(from)); }, [&] { desk.press(Qt::Key_Tab); });
}

void walkWithReport(benchmark::State& state) {
    Desk desk;
    desk.showReport();
    const auto walk = [&] {
        for (int cell = 1; cell < BlockScreen::cellCount; ++cell) {
            desk.press(Qt::Key_Tab);
        }
    };
    measure(
        state, [&] { desk.focus(desk.edid().txtEdit(0)); }, walk);
}

/// A digit, and the step to the next cell, which brings the report up to date.
void typeWithReport(benchmark::State& state) {
    Desk desk;
    desk.showReport();
    bool other = false;
    const auto prepare = [&] {
        desk.focus(desk.edid().txtEdit(54));
        other = !other;
        desk.type(other ? "11" : "22");
    };
    measure(state, prepare, [&] { desk.press(Qt::Key_Tab); });
}

void openFile(benchmark::State& state) {
    Desk desk;
    const auto open = [&](const char* name) {
        desk.platform.queueFileName(name);
        desk.act([&] { input::choose(desk.workbench.frmMain().mnuFileOpen); });
    };
    measure(
        state, [&] { open(display); }, [&] { open(television); });
}

/// Up to a window that takes keys; the toolkit is up already, and the splash does not wait.
void launch(benchmark::State& state) {
    std::optional<test::DesktopProgram> program;
    const auto start = [&] {
        program.emplace();
        program->frame().window().resize(window4k);
        test::DesktopProgram::settle();
    };
    measure(
        state, [&] { program.reset(); }, start);
}

} // namespace

BENCHMARK(paintWindow)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeDigit, first, 1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeDigit, second, 2)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(enterInPanel)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(moveByTab, withinField, 54)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(moveByTab, toOtherPanel, 53)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(typeWithReport)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(walkWithReport)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openFile)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(launch)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace wb

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
