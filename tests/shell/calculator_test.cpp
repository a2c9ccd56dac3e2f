#include "shell/calculator.h"

#include <gtest/gtest.h>

#include "support/program.h"

namespace wb::shell {
namespace {

using Lines = std::vector<std::string>;

class Calculator : public testing::Test {
protected:
    Calculator() { input::choose(workbench.frmMain().HexCalculator); }

    FrmHexCalculator& screen() { return workbench.frmHexCalculator(); }
    std::string display() { return screen().Display.text(); }
    std::string current() { return screen().CurrentCell.text(); }
    std::string results() { return screen().ResultsCell.text(); }

    /// Clicks keys by their captions; false where one is out of reach.
    bool press(std::initializer_list<std::string_view> captions) {
        bool all = true;
        for (const std::string_view caption : captions) {
            for (int key = 0; key <= 25; ++key) {
                if (screen().Command1(key).caption() == caption) {
                    all = input::click(screen().Command1(key)) && all;
                }
            }
        }
        return all;
    }
    void select(int mode) { input::click(screen().Option1(mode)); }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(Calculator, StartsInDecimal) {
    EXPECT_EQ(screen().caption(), "Hex Calculator");
    EXPECT_EQ(screen().CalcMode, 1);
    EXPECT_TRUE(screen().Option1(1).selected());
    EXPECT_EQ(screen().OperatorPressed, flagFalse);
    for (int key = 0; key <= 25; ++key) {
        EXPECT_EQ(screen().Command1(key).enabled(), key < 10 || key > 15) << key;
    }
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmHexCalculator.Command1(0)");
    EXPECT_TRUE(screen().Display.locked() && screen().CurrentCell.locked() && screen().ResultsCell.locked());
}

TEST_F(Calculator, Adds) {
    EXPECT_TRUE(press({"1", "+", "2", "Enter"}));
    EXPECT_EQ(current(), "3");
    EXPECT_EQ(results(), "1");
    EXPECT_EQ(display(), "3");
    EXPECT_EQ(screen().PendingOperator, "");
    EXPECT_TRUE(program.boxes.empty());
}

TEST_F(Calculator, AnOperatorMovesTheNumberOver) {
    press({"4", "2", "-"});
    EXPECT_EQ(results(), "42");
    EXPECT_EQ(current(), "");
    EXPECT_EQ(display(), "");
    EXPECT_EQ(screen().OperatorPressed, flagFalse);
    EXPECT_EQ(screen().PendingOperator, "-");
}

TEST_F(Calculator, ASecondOperatorTakesThePlaceOfTheFirst) {
    press({"7", "+", "*", "5", "Enter"});
    EXPECT_EQ(results(), "") << "moved over once more, empty";
    EXPECT_EQ(current(), "0") << "nothing times five";
}

struct Sum {
    std::vector<const char*> keys;
    const char* current;
};

void PrintTo(const Sum& sum, std::ostream* out) {
    for (const char* key : sum.keys) {
        *out << key << ' ';
    }
    *out << "gives " << sum.current;
}

class Sums : public Calculator, public testing::WithParamInterface<Sum> {};

TEST_P(Sums, AreThoseOfDoubles) {
    for (const char* key : GetParam().keys) {
        EXPECT_TRUE(press({key})) << key;
    }
    EXPECT_EQ(current(), GetParam().current);
    EXPECT_EQ(display(), GetParam().current);
    EXPECT_TRUE(program.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Decimal, Sums,
    testing::Values(Sum{{"2", "-", "5", "Enter"}, "-3"}, Sum{{"6", "*", "7", "Enter"}, "42"},
                    Sum{{"1", "/", "4", "Enter"}, "0.25"}, Sum{{"1", "/", "3", "Enter"}, "0.333333333333333"},
                    Sum{{"2", "/", "3", "Enter"}, "0.666666666666667"}, Sum{{"0", "/", "5", "Enter"}, "0"},
                    // Without a pending operator nothing is calculated.
                    Sum{{"5", "Enter", "Enter"}, "5"}, Sum{{"5", "+", "6", "Enter", "Enter"}, "11"},
                    // Digits go on behind a result.
                    Sum{{"5", "+", "6", "Enter", "0"}, "110"}, Sum{{"0", "0", "7"}, "007"}, Sum{{"+/-"}, "-"},
                    Sum{{"+/-", "5"}, "-5"}, Sum{{"5", "+/-"}, "-5"}, Sum{{"5", "+/-", "+/-"}, "5"},
                    Sum{{"8", "+/-", "*", "2", "Enter"}, "-16"}));

TEST_F(Calculator, APointGoesToTheOtherCell) {
    EXPECT_TRUE(press({"1", "+", "2", "."}));
    EXPECT_EQ(current(), "2");
    EXPECT_EQ(results(), "1.");
    press({"."});
    EXPECT_EQ(results(), "1..");
    press({"Enter"});
    EXPECT_EQ(current(), "3") << "a number ends at its second point";
}

TEST_F(Calculator, Clears) {
    press({"1", "+", "2", "CE"});
    EXPECT_EQ(current(), "");
    EXPECT_EQ(results(), "1");
    press({"3", "Clear"});
    EXPECT_EQ(current(), "");
    EXPECT_EQ(results(), "");
    EXPECT_EQ(display(), "");
}

TEST_F(Calculator, BackspaceTakesNothingBack) {
    press({"1", "2", "BS"});
    EXPECT_EQ(current(), "12");
    EXPECT_EQ(display(), "12");
    press({"CE", "BS"});
    EXPECT_EQ(current(), "") << "each key, the clear keys too, remembers what it leaves";
}

TEST_F(Calculator, HexadecimalDigitsJoinTheHexadecimalForm) {
    select(0);
    EXPECT_TRUE(press({"1", "0"}));
    EXPECT_EQ(current(), "10");
    EXPECT_EQ(display(), "A");
    EXPECT_TRUE(press({"F"}));
    EXPECT_EQ(current(), "175");
    EXPECT_EQ(display(), "AF");
    EXPECT_TRUE(press({"5"}));
    EXPECT_EQ(current(), "1755") << "a decimal digit is added to the decimal text";
    EXPECT_EQ(display(), "6DB");
}

TEST_F(Calculator, ALetterStartsANumber) {
    select(0);
    press({"C"});
    EXPECT_EQ(current(), "12");
    press({"+", "D", "Enter"});
    EXPECT_EQ(current(), "25");
    EXPECT_EQ(display(), "19");
}

TEST_F(Calculator, AHexadecimalViewRoundsAndShowsNegativeNumbersInTwosComplement) {
    press({"5", "/", "2", "Enter"});
    select(0);
    EXPECT_EQ(current(), "2.5");
    EXPECT_EQ(display(), "2") << "half to the even neighbour";
    press({"CE", "1", "+/-"});
    EXPECT_EQ(display(), "FFFFFFFF");
    press({"CE"});
    EXPECT_EQ(display(), "");
}

TEST_F(Calculator, ANumberBeyond32BitsFailsInTheHexadecimalView) {
    select(0);
    press({"2", "1", "4", "7", "4", "8", "3", "6", "4", "7"});
    EXPECT_EQ(display(), "7FFFFFFF");
    EXPECT_TRUE(program.boxes.empty());
    press({"A"});
    EXPECT_EQ(program.takeBoxes(), Lines{"Overflow"});
    EXPECT_EQ(current(), "2147483647");
    press({"0"});
    EXPECT_EQ(program.takeBoxes(), Lines{"Overflow"});
    EXPECT_EQ(current(), "21474836470");
    EXPECT_EQ(display(), "7FFFFFFF");
    select(0);
    EXPECT_EQ(program.takeBoxes(), Lines{"Overflow"});
    select(1);
    EXPECT_EQ(display(), "21474836470");
}

TEST_F(Calculator, TheBinaryViewTakesDecimalDigitsForHexadecimalOnes) {
    press({"1", "2"});
    select(2);
    EXPECT_EQ(display(), "00010010");
    EXPECT_TRUE(press({"9"})) << "nothing limits the entry to binary digits";
    EXPECT_EQ(display(), "000100101001");
    EXPECT_EQ(current(), "129");
}

TEST_F(Calculator, ModesDecideWhichKeysWork) {
    select(0);
    EXPECT_EQ(screen().CalcMode, 0);
    EXPECT_TRUE(screen().Command1(10).enabled());
    EXPECT_TRUE(screen().Command1(15).enabled());
    EXPECT_FALSE(press({"."}));
    select(2);
    EXPECT_EQ(screen().CalcMode, 2);
    EXPECT_FALSE(press({"A"}));
    EXPECT_FALSE(press({"."}));
    select(1);
    EXPECT_EQ(screen().CalcMode, 1);
    EXPECT_FALSE(press({"F"}));
    EXPECT_TRUE(press({"."}));
}

TEST_F(Calculator, DivisionByZeroEndsTheKeyPress) {
    press({"8", "/", "0", "Enter"});
    EXPECT_EQ(program.takeBoxes(), Lines{"Division by zero"});
    EXPECT_EQ(current(), "0");
    EXPECT_EQ(results(), "8");
    EXPECT_EQ(screen().PendingOperator, "/");
    press({"CE", "Enter"});
    EXPECT_EQ(program.takeBoxes(), Lines{"Division by zero"}) << "nothing counts as zero";
    press({"4", "Enter"});
    EXPECT_EQ(current(), "2");
}

TEST_F(Calculator, AResultBeyondADoubleIsAnOverflow) {
    for (int i = 0; i < 300; ++i) {
        press({"9"});
    }
    press({"*"});
    for (int i = 0; i < 300; ++i) {
        press({"9"});
    }
    press({"Enter"});
    EXPECT_EQ(program.takeBoxes(), Lines{"Overflow"});
    EXPECT_EQ(current(), std::string(300, '9'));
}

TEST_F(Calculator, TheKeyboardReachesItsKeys) {
    select(0);
    for (const int code : {49, 50, 97, 105, 65, 70}) {
        EXPECT_TRUE(input::keyCode(workbench, code));
    }
    // 1, 2, 1, 9, then A and F on the hexadecimal form of 1219, which is 4C3.
    EXPECT_EQ(display(), "4C3AF");
    EXPECT_EQ(current(), "312239");
    for (const int code : {107, 50, 13}) {
        input::keyCode(workbench, code);
    }
    EXPECT_EQ(current(), "2") << "there is no key for Enter";
    EXPECT_EQ(screen().PendingOperator, "+");
    for (const auto& [code, operation] : {std::pair(109, "-"), std::pair(106, "*"), std::pair(111, "/")}) {
        input::keyCode(workbench, code);
        EXPECT_EQ(screen().PendingOperator, operation);
    }
}

TEST_F(Calculator, TheKeyboardReachesEnabledKeysOnly) {
    input::keyCode(workbench, 65);
    EXPECT_EQ(current(), "");
    input::keyCode(workbench, 110);
    EXPECT_EQ(results(), ".");
    select(0);
    input::keyCode(workbench, 110);
    EXPECT_EQ(results(), ".");
    input::keyCode(workbench, 65);
    EXPECT_EQ(current(), "10");
}

TEST_F(Calculator, OtherCodesDoNothing) {
    press({"1"});
    for (int code = 0; code < 256; ++code) {
        const bool isKey =
            (code >= 48 && code <= 57) || (code >= 96 && code <= 107) || code == 109 || code == 110 || code == 111;
        if (!isKey) {
            input::keyCode(workbench, code);
        }
    }
    EXPECT_EQ(current(), "1");
    EXPECT_EQ(results(), "");
}

TEST_F(Calculator, ATypedCharacterCountsOnceOnAnyControl) {
    input::moveFocus(screen().Display);
    program.type("7");
    EXPECT_EQ(current(), "7");
    EXPECT_EQ(display(), "7") << "the text itself is locked";
    input::moveFocus(screen().Command1(5));
    program.type("8");
    input::moveFocus(screen().Option1(1));
    program.type("9");
    EXPECT_EQ(current(), "789");
}

TEST_F(Calculator, ComesUpOnceAndBesideTheImage) {
    input::close(screen());
    EXPECT_EQ(workbench.HexCalculatorOpen, flagFalse);
    EXPECT_EQ(workbench.loaded(ScreenId::HexCalculator), nullptr);

    program.platform.queueAnswer(platform::Answer::No);
    input::choose(workbench.frmMain().mnuFileNew);
    input::toolBar(workbench, "Calculator");
    EXPECT_EQ(workbench.HexCalculatorOpen, flagTrue);
    EXPECT_EQ(workbench.windows.children(), (std::vector<Screen*>{&screen(), &workbench.frmEDID()}));

    input::activate(workbench.frmEDID());
    input::choose(workbench.frmMain().HexCalculator);
    EXPECT_EQ(workbench.windows.activeChild(), &workbench.frmEDID()) << "it is up already, and stays where it is";
}

TEST_F(Calculator, StartsAfreshEachTime) {
    select(0);
    press({"1", "+", "2"});
    input::close(screen());
    input::choose(workbench.frmMain().HexCalculator);
    EXPECT_EQ(current() + results() + display() + screen().PendingOperator, "");
    EXPECT_EQ(screen().CalcMode, 1);
}

TEST(HexTextToNumber, TakesUpperCaseDigitsByTheirPlace) {
    EXPECT_EQ(HexTextToNumber(""), 0);
    EXPECT_EQ(HexTextToNumber("AF"), 175);
    EXPECT_EQ(HexTextToNumber("7FFFFFFF"), 2147483647);
    EXPECT_EQ(HexTextToNumber("a1"), 1) << "lower case adds nothing";
    EXPECT_EQ(HexTextToNumber("1x1"), 257) << "but its place counts";
    EXPECT_EQ(HexTextToNumber("-1"), 1);
    EXPECT_EQ(HexTextToNumber("0000000000000000000000012345678"), 0x12345678);
}

TEST(HexTextToNumber, IsASigned32BitNumber) {
    EXPECT_THROW(HexTextToNumber("80000000"), Failure);
    EXPECT_THROW(HexTextToNumber("FFFFFFFF"), Failure);
    EXPECT_THROW(HexTextToNumber("100000000"), Failure);
    EXPECT_THROW(HexTextToNumber("10000000000000000000000000000000"), Failure);
}

} // namespace
} // namespace wb::shell
