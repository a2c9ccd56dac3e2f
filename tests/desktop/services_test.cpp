#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include "desktop/base/report_text.h"
#include "desktop/services/clock.h"
#include "desktop/services/event_loop.h"
#include "desktop/services/printing.h"
#include "desktop/services/settings.h"
#include "desktop/services/shell.h"
#include "desktop/services/window_arranger.h"
#include "support/temporary_folder.h"

namespace wb::desktop {
namespace {

using testing::HasSubstr;

TEST(Settings, KeepTextsOfAllCharacters) {
    const test::TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.file("settings.ini"));
    const std::string odd("a\0\x81\xFF\\;=\"", 8);
    {
        QtSettings settings(file);
        EXPECT_EQ(settings.read("MainLeft"), std::nullopt);
        settings.write("MainLeft", "1000.5");
        settings.write("Windows2000RegBaseLocation", odd);
    }
    const QtSettings settings(file);
    EXPECT_EQ(settings.read("MainLeft"), "1000.5");
    EXPECT_EQ(settings.read("Windows2000RegBaseLocation"), odd);
    EXPECT_THAT(test::TemporaryFolder::read(folder.file("settings.ini")), HasSubstr("[Settings]"));
}

TEST(Clock, WaitsWithoutLettingEventsRun) {
    SystemClock clock;
    bool ran = false;
    QMetaObject::invokeMethod(
        qApp, [&] { ran = true; }, Qt::QueuedConnection);
    QElapsedTimer timer;
    timer.start();
    clock.wait(0.05);
    EXPECT_GE(timer.nsecsElapsed(), 50'000'000);
    EXPECT_FALSE(ran);
    clock.wait(-1);
    QCoreApplication::processEvents();
}

TEST(Clock, TellsTheTimeOfTheSystem) {
    const SystemClock clock;
    const QDateTime before = QDateTime::currentDateTime();
    const platform::DateTime now = clock.now();
    const QDateTime told(QDate(now.year, now.month, now.day), QTime(now.hour, now.minute, now.second));
    EXPECT_LE(std::abs(before.secsTo(told)), 2);
    EXPECT_LT(clock.secondsSinceMidnight(), 86400);
    EXPECT_NEAR(clock.secondsSinceMidnight(), QTime::currentTime().msecsSinceStartOfDay() / 1000.0, 1);
}

TEST(Clock, NamesDaysAndMonthsInTheLanguageOfTheSystem) {
    const SystemClock clock;
    const platform::DateTime leapDay{2004, 2, 29}; // a Sunday
    EXPECT_EQ(clock.dayName(leapDay), QLocale::system().dayName(7, QLocale::ShortFormat).toStdString());
    EXPECT_EQ(clock.monthName(leapDay), QLocale::system().monthName(2, QLocale::ShortFormat).toStdString());
    EXPECT_FALSE(clock.dayName(leapDay).empty());
}

TEST(EventLoop, FiresATimerAmongThePendingEventsOfTheCallThatWaitsForIt) {
    ModelGate gate;
    QtEventLoop loop(gate);
    bool fired = false;
    gate.run([&] {
        loop.startTimer(20, [&] { fired = true; });
        while (!fired) { // as the start-up does
            loop.processPending();
        }
    });
    EXPECT_TRUE(fired);
}

TEST(EventLoop, FiresATimerFromTheProgramsOwnLoopAsACall) {
    ModelGate gate;
    QtEventLoop loop(gate);
    bool asCall = false;
    loop.startTimer(1, [&] { asCall = gate.running(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return asCall; }, 2000));
}

TEST(EventLoop, ShowsTheHourglassOnce) {
    ModelGate gate;
    QtEventLoop loop(gate);
    loop.setPointer(platform::Pointer::Hourglass);
    loop.setPointer(platform::Pointer::Hourglass);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    loop.setPointer(platform::Pointer::Normal);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

struct DeviceTool : platform::Shell {
    bool start(const platform::ShellCommand& command) override {
        arguments.push_back(command.arguments);
        return known;
    }
    bool known = true;
    std::vector<std::string> arguments;
};

TEST(Shell, LeavesTheDeviceToolToItsStandIn) {
    DeviceTool tool;
    QtShell shell(tool);
    const platform::ShellCommand rescan{
        .verb = "open", .program = "devcon.exe", .arguments = "rescan", .folder = "c:/nowhere"};
    EXPECT_TRUE(shell.start(rescan));
    EXPECT_EQ(tool.arguments, std::vector<std::string>{"rescan"});
    tool.known = false;
    EXPECT_FALSE(shell.start(rescan));
}

TEST(Shell, StartsOtherProgramsInTheirFolder) {
    const test::TemporaryFolder folder;
    DeviceTool tool;
    QtShell shell(tool);
    EXPECT_TRUE(shell.start({.verb = "open", .program = "touch", .arguments = "\"a b\" c", .folder = folder.file("")}));
    const auto made = [&](const char* name) { return QFile::exists(QString::fromStdString(folder.file(name))); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return made("a b") && made("c"); }, 5000));
    EXPECT_FALSE(shell.start({.verb = "open", .program = "no such program", .arguments = "", .folder = ""}));
    EXPECT_TRUE(tool.arguments.empty());
}

class Arranger : public testing::Test {
protected:
    Arranger() {
        area.resize(600, 400);
        area.show();
        for (int i = 0; i < 3; ++i) {
            windows.push_back(area.addSubWindow(new QWidget));
            windows.back()->show();
        }
        windows[2]->hide();
        area.setActiveSubWindow(windows[0]);
        arranger.area = [this] { return &area; };
    }
    QRect whole() const { return {QPoint(0, 0), area.viewport()->size()}; }

    ModelGate gate;
    QMdiArea area;
    std::vector<QMdiSubWindow*> windows;
    MdiArranger arranger{gate};
};

TEST_F(Arranger, TilesOneBelowTheOther) {
    arranger.arrange(platform::Arrangement::TileHorizontal);
    EXPECT_EQ(windows[0]->geometry(), QRect(0, 0, whole().width(), whole().height() / 2)) << "the active one on top";
    EXPECT_EQ(windows[1]->geometry(), QRect(0, whole().height() / 2, whole().width(), whole().height() / 2));
    EXPECT_TRUE(windows[2]->isHidden());
}

TEST_F(Arranger, TilesSideBySide) {
    arranger.arrange(platform::Arrangement::TileVertical);
    EXPECT_EQ(windows[0]->geometry(), QRect(0, 0, whole().width() / 2, whole().height()));
    EXPECT_EQ(windows[1]->geometry(), QRect(whole().width() / 2, 0, whole().width() / 2, whole().height()));
}

TEST_F(Arranger, Cascades) {
    arranger.arrange(platform::Arrangement::Cascade);
    EXPECT_NE(windows[0]->pos(), windows[1]->pos());
    EXPECT_TRUE(whole().contains(windows[0]->pos()));
}

TEST_F(Arranger, LinesUpMinimisedWindowsAtTheBottom) {
    for (QMdiSubWindow* window : {windows[0], windows[1]}) {
        window->showMinimized();
        window->move(100, 20);
    }
    arranger.arrange(platform::Arrangement::ArrangeIcons);
    EXPECT_EQ(windows[0]->geometry().bottom(), whole().bottom());
    EXPECT_EQ(windows[1]->geometry().bottom(), whole().bottom());
    EXPECT_FALSE(windows[0]->geometry().intersects(windows[1]->geometry()));
}

TEST_F(Arranger, BeginsANewRowOfIconsWhereThereIsNoRoom) {
    windows[2]->show();
    for (QMdiSubWindow* window : windows) {
        window->showMinimized();
    }
    area.resize(windows[0]->width() * 5 / 2, 400);
    arranger.arrange(platform::Arrangement::ArrangeIcons);
    for (const QMdiSubWindow* window : windows) {
        EXPECT_TRUE(whole().contains(window->geometry()));
        for (const QMdiSubWindow* other : windows) {
            EXPECT_EQ(window == other, window->geometry().intersects(other->geometry()));
        }
    }
}

TEST_F(Arranger, DoesNothingWithoutAFrame) {
    arranger.area = [] { return static_cast<QMdiArea*>(nullptr); };
    const QRect before = windows[0]->geometry();
    arranger.arrange(platform::Arrangement::TileVertical);
    EXPECT_EQ(windows[0]->geometry(), before);
}

/// The pages of a PDF as text.
QStringList pagesOf(const QString& file) {
    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    reader.waitForFinished();
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split('\f');
    pages.removeLast(); // behind the last page's end
    return pages;
}

class Printing : public testing::TestWithParam<QPageSize::PageSizeId> {
protected:
    void SetUp() override { ASSERT_FALSE(QStandardPaths::findExecutable("pdftotext").isEmpty()) << "see packages.txt"; }
    QStringList print(const std::string& text) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(folder.file("out.pdf")));
        printer.setPageSize(QPageSize(GetParam()));
        printer.setDocName("EDID report");
        printText(text, "A title", printer);
        return pagesOf(printer.outputFileName());
    }
    test::TemporaryFolder folder;
};

TEST_P(Printing, FitsALineOfAReport) {
    const std::string rule(70, '_');
    const QStringList pages = print(rule + "\r\nend\r\n");
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(pages[0].split('\n')[0].trimmed().toStdString(), rule);
}

TEST_P(Printing, GoesOnOverSeveralPages) {
    std::string text;
    constexpr int lines = 150;
    for (int i = 1; i <= lines; ++i) {
        text += "line " + std::to_string(i) + "\r\n";
    }
    const QStringList pages = print(text);
    EXPECT_GE(pages.size(), 2);
    QStringList printed;
    for (int number = 1; number <= pages.size(); ++number) {
        QStringList onPage = pages[number - 1].split('\n', Qt::SkipEmptyParts);
        const QString foot = QString("A title Page %1 of %2").arg(number).arg(pages.size());
        EXPECT_EQ(onPage.takeLast().simplified(), foot);
        printed += onPage;
    }
    ASSERT_EQ(printed.size(), lines) << "no line is lost between pages";
    for (int i = 1; i <= lines; ++i) {
        EXPECT_EQ(printed[i - 1].trimmed(), QString("line %1").arg(i));
    }
}

TEST_P(Printing, BreaksLinesBetweenWords) {
    std::string text;
    QStringList words;
    for (int i = 100; i < 160; ++i) {
        words += "word" + QString::number(i);
        text += words.last().toStdString() + ' ';
    }
    QStringList printed = print(text).join(' ').simplified().split(' ');
    printed.resize(words.size()); // the foot follows
    EXPECT_EQ(printed, words);
}

TEST_P(Printing, NamesTheDocument) {
    print("text");
    EXPECT_NE(test::TemporaryFolder::read(folder.file("out.pdf")).find("/Title"), std::string::npos);
    QProcess reader;
    reader.start("pdfinfo", {QString::fromStdString(folder.file("out.pdf"))});
    reader.waitForFinished();
    EXPECT_TRUE(
        QString::fromUtf8(reader.readAllStandardOutput()).contains(QRegularExpression("Title: +EDID report\n")));
}

TEST(ReportTitle, NamesTheFileOfTheImage) {
    EXPECT_EQ(reportTitle("/home/me/a b.DAT"), "EDID report of a b.DAT");
    EXPECT_EQ(reportTitle(""), "EDID report");
}

TEST_P(Printing, BreaksLinesThatAreTooLong) {
    const std::string text = std::string(300, 'x') + "\r\nlast";
    const QString printed = print(text).join(QString());
    EXPECT_EQ(printed.count('x'), 300);
    EXPECT_THAT(printed.toStdString(), HasSubstr("last"));
}

INSTANTIATE_TEST_SUITE_P(Papers, Printing, testing::Values(QPageSize::A4, QPageSize::Letter));

} // namespace
} // namespace wb::desktop
