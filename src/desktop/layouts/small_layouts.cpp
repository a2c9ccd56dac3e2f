#include "desktop/layouts/screens.h"

namespace wb::desktop {

namespace {

constexpr int noIndex = Control::noIndex;

constexpr Place frame[] = {
    one("Command1").at(0, 0).onKey("Alt+1").called("Shows the report of the open image"),
    one("Command2").at(0, 1).onKey("Alt+2").roomFor("Modify EDID (OFF)").called("Switches editing on and off"),
    one("Command3")
        .at(0, 2)
        .onKey("Alt+3")
        .roomFor("Auto Cell Seek (OFF)")
        .called("Lets the focus go from a cell to the input box of its field"),
    one("Command4").at(0, 3).onKey("Alt+4").roomFor("See Ext Block").called("Shows the extension block"),
    one("Command5").at(0, 4).onKey("Alt+5").called("Detects the monitors again and reads their EDID"),
    one("sbStatusBar").at(1, 0),
};
constexpr Area frameAreas[] = {{"", noIndex, frame}};

constexpr Place document[] = {one("rtftext").called("Report")};
constexpr Area documentAreas[] = {{"", noIndex, document}};

constexpr Place calculator[] = {
    words("Display").at(0, 0, 1, 2),
    one("Display").at(0, 2, 1, 4).as(Look::Value).wide(8).called("Display"),
    words("Left operand").at(1, 0, 1, 2),
    one("ResultsCell").at(1, 2, 1, 4).as(Look::Value).wide(8).called("Left operand"),
    words("Current number").at(2, 0, 1, 2),
    one("CurrentCell").at(2, 2, 1, 4).as(Look::Value).wide(8).called("Current number"),
    one("Mode").at(3, 0, 1, 6).called("Number base"),
    group("#keys").at(4, 0, 1, 6),
};
constexpr Place keys[] = {
    members("Command1", 10, 15).at(0, 0).rowsOf(6).as(Look::Key),
    members("Command1", 7, 9).at(1, 0).rowsOf(3).as(Look::Key),
    members("Command1", 4, 6).at(2, 0).rowsOf(3).as(Look::Key),
    members("Command1", 1, 3).at(3, 0).rowsOf(3).as(Look::Key),
    member("Command1", 0).at(4, 0).as(Look::Key),
    member("Command1", 24).at(4, 1).as(Look::Key),
    member("Command1", 23).at(4, 2).as(Look::Key),
    member("Command1", 19).at(1, 3).as(Look::Key).called("Divide"),
    member("Command1", 18).at(2, 3).as(Look::Key).called("Multiply"),
    member("Command1", 17).at(3, 3).as(Look::Key).called("Subtract"),
    member("Command1", 16).at(4, 3).as(Look::Key).called("Add"),
    member("Command1", 21).at(1, 4, 1, 2).as(Look::Key),
    member("Command1", 22).at(2, 4, 1, 2).as(Look::Key).called("Clear the current number"),
    member("Command1", 25).at(3, 4, 1, 2).as(Look::Key).called("One step back"),
    member("Command1", 20).at(4, 4, 1, 2).as(Look::Key),
};
constexpr Place mode[] = {members("Option1", 0, 2).rowsOf(3)};
constexpr Area calculatorAreas[] = {{"", noIndex, calculator}, {"Mode", noIndex, mode}, {"#keys", noIndex, keys}};

constexpr Place help[] = {
    one("Label1").at(0, 0).as(Look::Prose).wide(60),
    one("Label2").at(1, 0).as(Look::Prose).wide(60),
    one("Label3").at(2, 0),
    one("Label4").at(3, 0),
    one("Command1").at(4, 0).toTheRight(),
};
constexpr Area helpAreas[] = {{"", noIndex, help, Spacing::Paragraphs}};

constexpr Place edidReg[] = {
    one("Label2").at(0, 0).as(Look::Prose).wide(60),
    one("Text1").at(1, 0).wide(60).called("Base location in the registry"),
    group("#buttons").at(2, 0).toTheRight(),
};
constexpr Place edidRegButtons[] = {members("Command1", 0, 2).rowsOf(3)};
constexpr Area edidRegAreas[] = {
    {"", noIndex, edidReg, Spacing::Paragraphs},
    {"#buttons", noIndex, edidRegButtons},
};

constexpr Place about[] = {
    one("Image1").at(0, 0).as(Look::Picture).called("Picture of a monitor"),
    group("#credits").at(0, 1),
    group("#buttons").at(1, 0, 1, 2).toTheRight(),
};
constexpr Place credits[] = {
    one("Label1").at(0, 0),     one("lblVersion").at(1, 0), one("lblWrittenby").at(2, 0),
    one("lblAddress").at(3, 0), one("Help").at(4, 0),       one("Exit").at(5, 0),
};
constexpr Place aboutButtons[] = {
    one("cmdOK").at(0, 0),
    one("cmdSysInfo").at(0, 1),
};
constexpr Area aboutAreas[] = {
    {"", noIndex, about, Spacing::Paragraphs},
    {"#credits", noIndex, credits, Spacing::Paragraphs},
    {"#buttons", noIndex, aboutButtons},
};

constexpr ScreenLayout frameTable = {frameAreas};
constexpr ScreenLayout documentTable = {documentAreas};
constexpr ScreenLayout calculatorTable = {calculatorAreas};
constexpr ScreenLayout helpTable = {helpAreas};
constexpr ScreenLayout edidRegTable = {edidRegAreas};
constexpr ScreenLayout aboutTable = {aboutAreas};

} // namespace

const ScreenLayout& frameLayout() {
    return frameTable;
}

const ScreenLayout& documentLayout() {
    return documentTable;
}

const ScreenLayout& calculatorLayout() {
    return calculatorTable;
}

const ScreenLayout& helpLayout() {
    return helpTable;
}

const ScreenLayout& edidRegLayout() {
    return edidRegTable;
}

const ScreenLayout& aboutLayout() {
    return aboutTable;
}

} // namespace wb::desktop
