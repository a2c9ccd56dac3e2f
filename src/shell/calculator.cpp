#include "shell/calculator.h"

#include <array>
#include <cmath>
#include <string>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"

namespace wb::shell {

namespace {

enum Mode { hexMode, decimalMode, binaryMode };

enum Key {
    keyA = 10,
    keyF = 15,
    keyPlus,
    keyMinus,
    keyTimes,
    keyDivide,
    keyEnter,
    keyClear,
    keyClearEntry,
    keySign,
    keyPoint,
    keyBackspace,
};

struct KeyCode {
    int first; ///< the keyboard's codes, of keys in a row
    int last;
    int key; ///< the calculator's key for the first code
};
constexpr auto keyCodes = std::to_array<KeyCode>({{'0', '9', 0},
                                                  {96, 105, 0}, // number pad
                                                  {'A', 'F', keyA},
                                                  {107, 107, keyPlus},
                                                  {109, 109, keyMinus},
                                                  {106, 106, keyTimes},
                                                  {111, 111, keyDivide},
                                                  {110, 110, keyPoint},
                                                  {8, 8, keyBackspace}});

void append(Control& cell, std::string_view text) {
    cell.setText(cell.text() + std::string(text));
}

/// Upper-case hexadecimal form of the number in CurrentCell, rounded; empty where the cell is.
std::string currentAsHexadecimal(Workbench& workbench) {
    const std::string& text = workbench.frmHexCalculator().CurrentCell.text();
    return text.empty() ? std::string() : hexadecimal32(roundToInt32(Value(workbench, text)));
}

void refreshDisplay(Workbench& workbench) {
    FrmHexCalculator& screen = workbench.frmHexCalculator();
    switch (screen.CalcMode) {
        case hexMode:
            screen.Display.setText(currentAsHexadecimal(workbench));
            break;
        case binaryMode:
            // The decimal text digit by digit, as if its digits were hexadecimal ones.
            screen.Display.setText(HexToBinaryText(screen.CurrentCell.text()));
            break;
        default:
            screen.Display.setText(screen.CurrentCell.text());
            break;
    }
}

double outcomeOf(const std::string& operation, double x, double y) {
    if (operation == "+") {
        return x + y;
    }
    if (operation == "-") {
        return x - y;
    }
    if (operation == "*") {
        return x * y;
    }
    if (y == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    return x / y;
}

void calculate(Workbench& workbench) {
    FrmHexCalculator& screen = workbench.frmHexCalculator();
    if (!screen.PendingOperator.empty()) {
        const double x = Value(workbench, screen.ResultsCell.text());
        const double y = Value(workbench, screen.CurrentCell.text());
        const double outcome = outcomeOf(screen.PendingOperator, x, y);
        if (!std::isfinite(outcome)) {
            throw Failure(FailureKind::Overflow);
        }
        screen.CurrentCell.setText(plainDecimal(outcome));
    }
    screen.PendingOperator.clear();
}

void changeSign(Control& cell) {
    const std::string& text = cell.text();
    cell.setText(text.starts_with('-') ? text.substr(1) : "-" + text);
}

void runOwnAction(Workbench& workbench, int key) {
    FrmHexCalculator& screen = workbench.frmHexCalculator();
    switch (key) {
        case keyPlus:
        case keyMinus:
        case keyTimes:
        case keyDivide:
            screen.PendingOperator = screen.Command1(key).caption();
            screen.OperatorPressed = flagTrue;
            break;
        case keyEnter:
            calculate(workbench);
            break;
        case keyClear:
            screen.CurrentCell.setText("");
            screen.ResultsCell.setText("");
            break;
        case keyClearEntry:
            screen.CurrentCell.setText("");
            break;
        case keySign:
            changeSign(screen.CurrentCell);
            break;
        case keyPoint:
            // The point goes to the other cell: fractions cannot be typed.
            append(screen.ResultsCell, ".");
            break;
        case keyBackspace:
            screen.CurrentCell.setText(screen.PreviousCurrent);
            break;
        default:
            break;
    }
}

void addDigit(Workbench& workbench, int key) {
    FrmHexCalculator& screen = workbench.frmHexCalculator();
    const std::string& digit = screen.Command1(key).caption();
    if (key < keyA) {
        append(screen.CurrentCell, digit);
    } else {
        screen.CurrentCell.setText(std::to_string(HexTextToNumber(currentAsHexadecimal(workbench) + digit)));
    }
}

} // namespace

std::int32_t HexTextToNumber(std::string_view text) {
    constexpr std::int64_t beyondEveryNumber = std::int64_t{1} << 32U;
    std::int32_t sum = 0;
    std::int64_t place = 1;
    for (auto at = text.rbegin(); at != text.rend(); ++at) {
        const bool isDigit = (*at >= '0' && *at <= '9') || (*at >= 'A' && *at <= 'F');
        if (isDigit) {
            sum = int32From(sum + HexDigitValue(std::string_view(&*at, 1)) * place);
        }
        if (place < beyondEveryNumber) {
            place *= 16;
        }
    }
    return sum;
}

void HexCalculator_Click(Workbench& workbench) {
    if (workbench.HexCalculatorOpen != flagFalse) {
        return;
    }
    workbench.windows.show(workbench.frmHexCalculator());
    workbench.HexCalculatorOpen = flagTrue;
    if (workbench.EDIDLoaded != flagFalse) {
        workbench.focus.moveTo(workbench.frmEDID());
        workbench.platform.arranger.arrange(platform::Arrangement::TileVertical);
        workbench.focus.moveTo(workbench.frmHexCalculator());
    }
}

void frmHexCalculator_Command1_Click(Workbench& workbench, int index) {
    trapped(workbench, [&] {
        runOwnAction(workbench, index);
        FrmHexCalculator& screen = workbench.frmHexCalculator();
        if (screen.OperatorPressed != flagFalse) {
            screen.ResultsCell.setText(screen.CurrentCell.text());
            screen.CurrentCell.setText("");
            screen.OperatorPressed = flagFalse;
        } else if (index <= keyF) {
            addDigit(workbench, index);
        }
        screen.PreviousCurrent = screen.CurrentCell.text();
        refreshDisplay(workbench);
    });
}

void frmHexCalculator_Option1_Click(Workbench& workbench, int index) {
    trapped(workbench, [&] {
        FrmHexCalculator& screen = workbench.frmHexCalculator();
        for (int key = keyA; key <= keyF; ++key) {
            screen.Command1(key).setEnabled(index == hexMode);
        }
        screen.Command1(keyPoint).setEnabled(index == decimalMode);
        screen.CalcMode = static_cast<std::int16_t>(index);
        refreshDisplay(workbench);
    });
}

void frmHexCalculator_KeyUp(Workbench& workbench, int keyCode) {
    for (const KeyCode& codes : keyCodes) {
        if (keyCode >= codes.first && keyCode <= codes.last) {
            const int key = codes.key + keyCode - codes.first;
            if (workbench.frmHexCalculator().Command1(key).enabled()) {
                frmHexCalculator_Command1_Click(workbench, key);
            }
            return;
        }
    }
}

void frmHexCalculator_Unload(Workbench& workbench, bool&) {
    workbench.HexCalculatorOpen = flagFalse;
}

} // namespace wb::shell
