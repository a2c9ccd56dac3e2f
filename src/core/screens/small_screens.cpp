#include "core/screens/small_screens.h"

namespace wb {

FrmSplash::FrmSplash(Workbench& workbench) : Screen(workbench, ScreenId::Splash, "") {}

FrmDocument::FrmDocument(Workbench& workbench) : Screen(workbench, ScreenId::Document, "Document") {
    setFirstInTabOrder(rtftext);
}

FrmHexCalculator::FrmHexCalculator(Workbench& workbench)
    : Screen(workbench, ScreenId::HexCalculator, "Hex Calculator") {
    setFirstInTabOrder(Command1(0));
    Command1.setCaptions({"0", "1", "2", "3", "4", "5", "6", "7",     "8",     "9",  "A",   "B", "C",
                          "D", "E", "F", "+", "-", "*", "/", "Enter", "Clear", "CE", "+/-", ".", "BS"});
    Option1.setCaptions({"&Hex", "&Dec", "&Binary"});
    Option1(1).changeValue(-1);
    for (int letter = 10; letter <= 15; ++letter) {
        Command1(letter).setEnabled(false);
    }
    for (Control* text :
         {static_cast<Control*>(&Display), static_cast<Control*>(&CurrentCell), static_cast<Control*>(&ResultsCell)}) {
        text->setLocked(true);
    }
}

FrmHelp::FrmHelp(Workbench& workbench) : Screen(workbench, ScreenId::Help, "Information") {
    setFirstInTabOrder(Command1);
}

FrmEdidReg::FrmEdidReg(Workbench& workbench) : Screen(workbench, ScreenId::EdidReg, "Windows 2000 EDID Base Location") {
    setFirstInTabOrder(Text1);
    Command1.setCaptions({"&Save", "Cancel", "&Test"});
}

FrmAbout::FrmAbout(Workbench& workbench) : Screen(workbench, ScreenId::About, "") {
    setFirstInTabOrder(cmdOK);
}

} // namespace wb
