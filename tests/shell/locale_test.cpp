#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>

#include "core/base/numbers.h"
#include "report/show_report.h"
#include "support/german_locale.h"
#include "support/program.h"

namespace wb {
namespace {

/// A locale with a decimal comma, the process's own while the object lives.
class CommaLocale {
public:
    CommaLocale() : active_(german_.available() && std::setlocale(LC_ALL, test::GermanLocale::name) != nullptr) {}
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() { std::setlocale(LC_ALL, "C"); }
    bool active() const { return active_; }

private:
    test::GermanLocale german_;
    bool active_;
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
