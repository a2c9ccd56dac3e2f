#include <QDockWidget>
#include <QFile>
#include <QScreen>
#include <random>

#include "desktop/desktop_test.h"
#include "desktop/services/settings.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

using Settings = std::map<std::string, std::string>;

/// What a program of another version, another screen or a hand may have left in the settings.
class StoredSettings : public testing::TestWithParam<Settings> {
protected:
    /// The frame is on the screen, in a size that can be worked with, with the looks of the system.
    static void expectUsable(const DesktopProgram& program) {
        const QMainWindow& window = program.frame().window();
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(window.screen()->availableGeometry().intersects(window.geometry()));
        EXPECT_TRUE(window.screen()->availableGeometry().contains(window.pos()));
        const QSize least = window.minimumSizeHint().boundedTo(window.screen()->availableSize());
        EXPECT_GE(window.width(), least.width());
        EXPECT_GE(window.height(), least.height());
        for (const auto* dock : window.findChildren<QDockWidget*>()) {
            EXPECT_TRUE(dock->isHidden()) << dock->objectName().toStdString();
        }
    }
};

TEST_P(StoredSettings, OfNoSenseKeepNobodyFromWorking) {
    const QFont font = QApplication::font();
    const QPalette palette = QApplication::palette();
    DesktopProgram program(false);
    program.platform.settings = GetParam();
    program.start();
    EXPECT_EQ(program.boxes, std::vector<std::string>());
    expectUsable(program);
    EXPECT_EQ(QApplication::font(), font);
    EXPECT_EQ(QApplication::palette(), palette);
    program.openSample("zarqo-z40.bin");
    program.act([&] { input::close(program.workbench.frmMain()); });
    EXPECT_TRUE(program.workbench.ended);
}

INSTANTIATE_TEST_SUITE_P(
    Values, StoredSettings,
    testing::Values(Settings{{"MainLeft", "3.4E38"}, {"MainTop", "-3.4E38"}}, // as far as a place can be away
                    Settings{{"MainLeft", "-100000000000"}, {"MainTop", "100000000000"}},
                    Settings{{"MainLeft", "2147483648"}, {"MainTop", "32212254720"}}, // beyond a number of pixels
                    Settings{{"MainWidth", "-6500"}, {"MainHeight", "-1"}},           //
                    Settings{{"MainWidth", "0"}, {"MainHeight", "0"}},
                    Settings{{"MainWidth", "3.4E38"}, {"MainHeight", "1E20"}},
                    Settings{{"MainWidth", "1E-30"}, {"MainHeight", "1E20"}}, //
                    Settings{{"MainZoom", "-100"}}, Settings{{"MainZoom", "0"}}, Settings{{"MainZoom", "1000000"}},
                    Settings{{"MainZoom", "99999999999999999999"}}, Settings{{"MainZoom", "large"}},
                    Settings{{"MainZoom", ""}}, Settings{{"MainColours", "contrast"}}, Settings{{"MainColours", ""}},
                    Settings{{"MainDocks", "no base 64!"}}, Settings{{"MainDocks", "AAAA"}},
                    Settings{{"MainDocks", std::string(1000000, 'A')}},
                    Settings{{"MainDocks", std::string(1000, '\xFF')}}, Settings{{"MainMaximised", "2"}},
                    Settings{{"MainMaximised", ""}}, Settings{{"MainTheme", "of a later version"}, {"", "nameless"}}));

TEST(StoredSettingsOfNoNumber, AreToldAndTheFrameComesUpAllTheSame) {
    for (const char* name : {"MainLeft", "MainTop", "MainWidth", "MainHeight"}) {
        for (const char* text : {"left", "", "nan", "@Invalid()"}) {
            DesktopProgram program(false);
            program.platform.settings = {{name, text}};
            program.start();
            EXPECT_EQ(program.boxes, std::vector<std::string>{"Type mismatch"}) << name << ' ' << text;
            const QMainWindow& window = program.frame().window();
            EXPECT_TRUE(window.isVisible());
            EXPECT_GT(window.width(), 0);
            EXPECT_TRUE(window.screen()->availableGeometry().intersects(window.geometry()));
        }
    }
}

/// The toolkit reads beyond the end of some states that are damaged.
TEST(StoredDocks, ComeBackOnlyAsTheyWere) {
    std::string right;
    QByteArray state;
    {
        DesktopProgram program;
        program.frame().window().findChild<QDockWidget*>("dockFields")->show();
        ASSERT_TRUE(QTest::qWaitFor([&] { return program.platform.settings.count("MainDocks") != 0; }));
        right = program.platform.settings.at("MainDocks");
        state = program.frame().window().saveState();
    }
    const auto shows = [](const std::string& stored) {
        DesktopProgram program(false);
        program.platform.settings = {{"MainDocks", stored}};
        program.start();
        return program.frame().window().findChild<QDockWidget*>("dockFields")->isVisible();
    };
    EXPECT_TRUE(shows(right));
    EXPECT_FALSE(shows(right.substr(0, right.size() / 2)));
    EXPECT_FALSE(shows(right + "AA"));
    std::mt19937 random(1);
    constexpr int attempts = 50;
    for (int i = 0; i < attempts; ++i) {
        std::string damaged = right;
        damaged[random() % damaged.size()] ^= 1;
        EXPECT_FALSE(shows(damaged)) << i;
        QByteArray bare = state;
        bare[static_cast<qsizetype>(random() % static_cast<unsigned>(bare.size()))] = static_cast<char>(random());
        EXPECT_FALSE(shows(bare.toBase64().toStdString())) << i << ", without its hash";
    }
}

class SettingsFile : public testing::Test {
protected:
    void put(const QByteArray& content) const {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        ASSERT_EQ(out.write(content), content.size());
    }
    /// Nothing of sense is in it, and what is written holds at least until the end of the program.
    void expectUsable(const char* what) const {
        desktop::QtSettings settings(file);
        EXPECT_EQ(settings.read("MainLeft"), std::nullopt) << what;
        settings.write("MainLeft", "1000");
        EXPECT_EQ(settings.read("MainLeft"), "1000") << what;
    }

    const TemporaryFolder folder;
    QString file = QString::fromStdString(folder.file("settings.ini"));
};

TEST_F(SettingsFile, OfAnyContentIsBorne) {
    std::mt19937 random(1);
    QByteArray noise;
    constexpr int size = 1 << 20;
    while (noise.size() < size) {
        noise.append(static_cast<char>(random()));
    }
    put({});
    expectUsable("empty");
    put(noise);
    expectUsable("noise");
    put("[Settings]\nMainLeft\n=5\n[[[\n]\n%%%=\\x\n\"" + QByteArray(size, 'x'));
    expectUsable("a file of no form");
    put("[Settings" + QByteArray(size, '\0'));
    expectUsable("zeros");
}

TEST_F(SettingsFile, KeepsWhatALaterVersionHasPutThere) {
    put("[Settings]\nMainTheme=\"of a later version\"\n\n[Layout]\nrows=3\n");
    expectUsable("with other keys");
    const std::string content = TemporaryFolder::read(file.toStdString());
    EXPECT_NE(content.find("MainTheme=of a later version"), std::string::npos) << content;
    EXPECT_NE(content.find("rows=3"), std::string::npos) << content;
}

TEST_F(SettingsFile, HasTextsWhereOtherTypesStand) {
    put("[Settings]\nMainLeft=1, 2, 3\nMainTop=@Invalid()\nMainZoom=@Variant(\\0\\0\\0\\x7f\\xff\\xff\\xff\\xff)\n"
        "MainDocks=@ByteArray(abc)\nMainWidth=@Rect(1 2 3 4)\n");
    const desktop::QtSettings settings(file);
    EXPECT_EQ(settings.read("MainLeft"), "");
    EXPECT_EQ(settings.read("MainTop"), std::nullopt);
    EXPECT_EQ(settings.read("MainZoom").value_or(""), "");
    EXPECT_EQ(settings.read("MainDocks"), "abc");
    EXPECT_EQ(settings.read("MainWidth"), "");
}

TEST_F(SettingsFile, ThatCannotBeWrittenKeepsNothingAndEndsNothing) {
    put("no folder");
    file += "/settings.ini";
    expectUsable("below a file");
    file = QString::fromStdString(folder.file(""));
    expectUsable("a folder");
    EXPECT_EQ(desktop::QtSettings(file).read("MainLeft"), std::nullopt);
}

} // namespace
} // namespace wb::test
