#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "core/numbers.h"
#include "report/show_report.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace wb {
namespace {

/// Makes a locale with a decimal comma the process's own, from the system's source files.
class CommaLocale {
public:
    CommaLocale() {
        const std::string path = folder_.file("de_DE.UTF-8");
        const std::string command = "localedef --no-archive -i de_DE -f UTF-8 '" + path + "' 2>/dev/null";
        if (std::system(command.c_str()) == 0) {
            setenv("LOCPATH", folder_.file("").c_str(), 1);
            active_ = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
        }
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() {
        std::setlocale(LC_ALL, "C");
        unsetenv("LOCPATH");
    }
    bool active() const { return active_; }

private:
    test::TemporaryFolder folder_;
    bool active_ = false;
};

std::string reportOfANewImage() {
    test::Program program;
    input::choose(program.workbench.frmMain().mnuFileNew);
    input::click(program.workbench.frmMain().Command2);
    program.setCells(21, {"34", "21", "78"});
    program.setCells(54, {"02", "3A", "80", "18", "71"});
    program.platform.queueFileName(std::nullopt);
    input::moveFocus(program.workbench.frmEDID().txtEdit(23));
    input::moveFocus(program.workbench.frmEDID().txtEdit(54));
    input::click(program.workbench.frmMain().Command1);
    return program.workbench.frmDocument().rtftext.text();
}

TEST(Locale, ADecimalCommaChangesNothing) {
    const std::string plain = reportOfANewImage();
    const CommaLocale locale;
    ASSERT_TRUE(locale.active()) << "the package locales is missing";
    char shown[16] = {};
    std::snprintf(shown, sizeof shown, "%.1f", 0.5);
    ASSERT_STREQ(shown, "0,5") << "the locale has no decimal comma";
    EXPECT_EQ(formatNumber(1234.5, "0.00"), "1234.50");
    EXPECT_EQ(plainDecimal(0.5), "0.5");
    EXPECT_DOUBLE_EQ(leadingNumber("1.5,7"), 1.5);
    EXPECT_EQ(reportOfANewImage(), plain);
}

} // namespace
} // namespace wb
