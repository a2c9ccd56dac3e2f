#include "support/random_user.h"

#include <array>
#include <fstream>
#include <iterator>
#include <sstream>

#include "core/base/text.h"
#include "core/input.h"

namespace wb::test {

namespace {

constexpr std::string_view images = "random-1.DAT random-2.DAT random-3.DAT";
constexpr std::string_view openable =
    "random-1.DAT random-2.DAT random-3.DAT cea-four-audio.DAT cea-four-blocks.DAT cea-map.DAT notes.txt missing.DAT "
    "samples/halvorine-hv19.DAT samples/norvixan-nx3d.DAT samples/tessaramond-tp8.DAT samples/zarqo-z40.DAT";
constexpr std::string_view writable = "random-1.DAT random-2.DAT out.hex out.DAT missing/out.DAT";

constexpr std::string_view menuEntries =
    "mnuFileNew mnuFileOpen mnuFileOpen mnuFileClose mnuFileClose mnuFileSave mnuFileSaveAs mnuFilePageSetup "
    "mnuFilePrintPreview mnuFilePrint ExportHex HexCalculator GetEDIDData Windows2000 mnuWindowCascade Info "
    "mnuHelpAbout";
constexpr std::string_view toolBarKeys = "New Open Save Print Calculator GetEDID Nothing";
constexpr std::string_view frameButtons = "Command1 Command2 Command3 Command3 Command4 Command4 Command4 Command5";

constexpr std::string_view texts =
    "0 1 4 5 7 26 30 60 109 255 256 1024 1990 2600 4660 65534 65535 99999 -1 -99999 0.5 0.64 1.0 2.2 3.5 1e9 &HFF ABC "
    "Name 00 01 FF FA FB FD fc 00e047 . x 1234567890123456";
constexpr std::string_view badTexts = "ZZ G1 ~ 1 fff 1e999";

std::vector<std::string> words(std::string_view text) {
    std::istringstream in{std::string(text)};
    return {std::istream_iterator<std::string>(in), {}};
}

bool isCell(const Control& control) {
    return control.name() == "txtEdit";
}

bool isAnything(const Control& control) {
    return !isCell(control) && control.kind() != ControlKind::Menu;
}

bool isBox(const Control& control) {
    return !isCell(control) && control.kind() == ControlKind::Text;
}

bool isCombo(const Control& control) {
    return control.kind() == ControlKind::Combo;
}

std::string typeLine(std::string_view text) {
    return "type \"" + std::string(text) + '"';
}

std::string cellLine(ScreenId screen, int index) {
    return "focus " + std::string(screenName(screen)) + ".txtEdit(" + std::to_string(index) + ')';
}

} // namespace

RandomUser::RandomUser(Workbench& workbench, unsigned seed) : workbench_(workbench), random_(seed) {
    for (const std::string& name : words(images)) {
        writeImage(name);
    }
}

RandomUser::Lines RandomUser::preparations() {
    return {"start", "registry \"monitors.reg\""};
}

/// A header byte of a data block.
std::string RandomUser::header(int length) {
    constexpr std::array<int, 8> tags = {0, 1, 1, 2, 2, 3, 4, 5};
    return ByteToHex2(oneOf(tags) * 32 + length);
}

/// A data file of two blocks of random bytes: among the 18-byte blocks descriptors, in block 1 often a collection of
/// data blocks, here and there a pair that is no number.
void RandomUser::writeImage(const std::string& name) {
    constexpr std::string_view tags = "FF FE FD FC FB FA 10 00";
    constexpr std::string_view extensions = "02 02 02 02 F0 00";
    std::vector<std::string> cells;
    for (int i = 0; i < 256; ++i) {
        cells.push_back(ByteToHex2(below(256)));
    }
    const auto cell = [&](int index) -> std::string& { return cells[static_cast<std::size_t>(index)]; };
    for (const int base : {54, 72, 90, 108}) {
        if (oneIn(2)) {
            cell(base) = cell(base + 1) = cell(base + 2) = "00";
            cell(base + 3) = wordOf(tags);
            cell(base + 10) = oneIn(2) ? "00" : cell(base + 10);
        }
    }
    cell(126) = oneIn(4) ? "00" : "01";
    cell(128) = wordOf(extensions);
    const int offset = 4 + below(106);
    cell(130) = ByteToHex2(offset);
    for (int i = 132; i < 128 + offset; ++i) {
        const int length = below(10);
        cell(i) = header(length);
        i += length;
    }
    if (oneIn(6)) {
        cell(below(256)) = wordOf(badTexts).substr(0, 2);
    }
    std::ofstream file(name, std::ios::binary);
    file << "128 BYTES OF EDID CODE:\r\n\r\n\r\n|";
    for (const std::string& text : cells) {
        file << ' ' << text;
    }
}

RandomUser::Lines RandomUser::next() {
    Screen* modal = workbench_.windows.modal();
    if (modal != nullptr && (focusIsCalledBack() || !oneIn(8))) {
        return onModal(*modal);
    }
    Screen* active = workbench_.windows.activeChild();
    if (active == nullptr || oneIn(6)) {
        return onFrame();
    }
    return onChild(*active);
}

/// A cell that is too long takes the focus back from whatever it goes to. A list is then opened in vain by front ends
/// that first open it, and a modal screen has the keys where the program has none for it.
bool RandomUser::focusIsCalledBack() const {
    const Control* focused = workbench_.focus.current();
    return focused != nullptr && isCell(*focused) && focused->text().size() > 2;
}

RandomUser::Lines RandomUser::onModal(Screen& screen) {
    if (focusIsCalledBack() || oneIn(4)) {
        return {"close " + std::string(screen.name())};
    }
    const Control* focused = workbench_.focus.current();
    const bool types = focused != nullptr && &focused->screen() == &screen && isBox(*focused) && oneIn(3);
    return types ? Lines{typeLine(text())} : clickAnything(screen);
}

RandomUser::Lines RandomUser::onFrame() {
    if (workbench_.EDIDLoaded == flagFalse || oneIn(2)) {
        return command();
    }
    const bool lockedStill = workbench_.ModifyEDIDOn == flagFalse && oneIn(2);
    return {"click frmMain." + (lockedStill ? "Command2" : wordOf(frameButtons))};
}

RandomUser::Lines RandomUser::command() {
    Lines lines;
    queueAnswers(lines);
    lines.push_back(oneIn(3) ? "toolbar \"" + wordOf(toolBarKeys) + '"' : "menu " + wordOf(menuEntries));
    return lines;
}

/// Answers that the next command may need or not; what is left over answers a later one.
void RandomUser::queueAnswers(Lines& lines) {
    if (oneIn(3)) {
        lines.push_back("answer " + wordOf("Yes No OK Cancel"));
    }
    if (!oneIn(3)) {
        lines.push_back("dialog \"" + wordOf(oneIn(4) ? writable : openable) + '"');
    } else if (oneIn(4)) {
        lines.emplace_back("dialog cancel");
    }
    if (oneIn(8)) {
        lines.emplace_back(oneIn(4) ? "printer cancel" : "printer ok");
    }
}

RandomUser::Lines RandomUser::onChild(Screen& screen) {
    if (oneIn(60)) {
        return {"close " + std::string(screen.name())};
    }
    switch (screen.id()) {
        case ScreenId::Edid:
        case ScreenId::CeaExt:
            return onBlock(static_cast<BlockScreen&>(screen));
        case ScreenId::HexCalculator:
            return onCalculator(screen);
        default: // nothing can be done in a report: back to the cells behind it
            return {cellLine(ScreenId::Edid, below(BlockScreen::cellCount))};
    }
}

RandomUser::Lines RandomUser::onBlock(BlockScreen& screen) {
    if (screen.id() == ScreenId::Edid && input::reachable(workbench_.frmMain().Command4) && oneIn(12)) {
        return {"click frmMain.Command4"};
    }
    switch (below(16)) {
        case 0:
        case 1:
        case 2:
            return {cellLine(screen.id(), below(BlockScreen::cellCount))};
        case 3:
            return {cellLine(screen.id(), below(40))};
        case 4:
            return {cellLine(screen.id(), below(BlockScreen::cellCount)), typeLine(cellText())};
        case 5:
            return {"dblclick " + screen.Hints(below(screen.panelCount())).fullName()};
        case 6:
            return {"enter"};
        case 7:
            return {typeLine(text())};
        case 8:
            return pickAnything(screen);
        case 9:
        case 10:
        case 11:
            return enterAnywhere(screen);
        default:
            return clickAnything(screen);
    }
}

RandomUser::Lines RandomUser::onCalculator(Screen& screen) {
    constexpr std::array<int, 12> keys = {48, 57, 65, 70, 97, 105, 106, 107, 109, 110, 111, 8};
    switch (below(8)) {
        case 0:
            return {"keyup " + std::to_string(oneOf(keys))};
        case 1:
            return {typeLine(wordOf("0 1 07 af 123456789"))};
        case 2:
            return {"close frmHexCalculator"};
        case 3:
            return {cellLine(ScreenId::Edid, below(BlockScreen::cellCount))};
        default:
            return clickAnything(screen);
    }
}

Control* RandomUser::reachable(Screen& screen, bool (*wanted)(const Control&)) {
    std::vector<Control*> within;
    for (Control* control : screen.controls()) {
        if (wanted(*control) && input::reachable(*control)) {
            within.push_back(control);
        }
    }
    return within.empty() ? nullptr : oneOf(within);
}

RandomUser::Lines RandomUser::clickAnything(Screen& screen) {
    if (oneIn(30)) { // also what is hidden or disabled
        Control* control = oneOf(screen.controls());
        return {"click " + control->fullName()};
    }
    Control* control = reachable(screen, &isAnything);
    return control == nullptr ? onFrame() : Lines{"click " + control->fullName()};
}

RandomUser::Lines RandomUser::enterAnywhere(Screen& screen) {
    Control* box = reachable(screen, &isBox);
    return box == nullptr ? onFrame() : Lines{"focus " + box->fullName(), typeLine(text()), "enter"};
}

RandomUser::Lines RandomUser::pickAnything(Screen& screen) {
    Control* combo = reachable(screen, &isCombo);
    if (combo == nullptr || focusIsCalledBack()) {
        return clickAnything(screen);
    }
    const int row = below(static_cast<int>(combo->rows().size()));
    return {"pick " + combo->fullName() + ' ' + std::to_string(row)};
}

/// One of the words of a list that blanks separate.
std::string RandomUser::wordOf(std::string_view list) {
    return oneOf(words(list));
}

std::string RandomUser::text() {
    return wordOf(oneIn(100) ? badTexts : texts);
}

std::string RandomUser::cellText() {
    return oneIn(100) ? wordOf(badTexts) : ByteToHex2(below(256));
}

} // namespace wb::test
