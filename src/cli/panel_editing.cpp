#include "cli/panel_editing.h"

#include "cli/cli_error.h"
#include "cli/output.h"
#include "cli/rewrite.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "core/input.h"
#include "core/keys.h"
#include "fields/descriptors.h"
#include "report/descriptor_layout.h"

namespace wb::cli {

namespace {

[[noreturn]] void failUnreachable(const Control& control) {
    throw CliError(control.fullName() + " cannot be reached");
}

} // namespace

PanelEditing::PanelEditing(const Image& image) : bytes_(image.content()) {
    program_.load(image);
    complainOfBoxes(image.origin().file, program_.boxes());
    beginToModify();
}

PanelEditing::PanelEditing() : bytes_(blockSize, '\0') {
    Control& create = program_.workbench().frmMain().mnuFileNew;
    if (!input::choose(create)) {
        failUnreachable(create);
    }
    takeOver({0, blockSize - 1});
    beginToModify();
}

void PanelEditing::beginToModify() {
    program_.clearBoxes();
    Control& modify = program_.workbench().frmMain().Command2;
    if (!input::click(modify)) {
        failUnreachable(modify);
    }
    refuseBoxes(modify);
}

void PanelEditing::enterIdentity(CellRange field, std::string_view entry) {
    focus(screen().txtEdit(field.first));
    enter(screen().VendorInfo, entry);
    takeOver(field);
}

void PanelEditing::enterDescriptorText(int block, std::string_view text) {
    const int base = detailedBlockBase(block);
    const CellRange cells = report::descriptorTextCells;
    showDescriptor(block);
    focus(screen().txtEdit(base + cells.first));
    enter(screen().DTaInput, text);
    takeOver({base + cells.first, base + cells.last});
}

void PanelEditing::makeDescriptor(int block, report::DescriptorFamily family) {
    const int base = detailedBlockBase(block);
    showDescriptor(block);
    goTo(base + report::descriptorTagCell);
    Control& option = screen().DTa(family);
    if (!input::click(option)) {
        failUnreachable(option);
    }
    refuseBoxes(option);
    takeOver({base, base + detailedBlockSize - 1});
}

void PanelEditing::makeDummy(int block) {
    const int cell = detailedBlockBase(block) + report::descriptorTagCell;
    typeCell(cell, ByteToHex2(fields::dummyTag));
    program_.clearBoxes(); // the decoder of the block misses the option
    takeOver(oneCell(cell));
}

void PanelEditing::typeCells(CellRange cells, std::span<const std::uint8_t> bytes) {
    // Some decoders write, so that a cell that was right when it was typed may have to be typed again once the others
    // are right too.
    constexpr int most = 3;
    std::optional<int> wrong = firstWrong(cells, bytes);
    for (int pass = 0; pass < most && wrong; ++pass) {
        for (int cell = cells.first; cell <= cells.last; ++cell) {
            const std::string digits = ByteToHex2(bytes[static_cast<std::size_t>(cell - cells.first)]);
            if (screen().txtEdit(cell).text() != digits) {
                typeCell(cell, digits);
                refuseBoxes(screen().txtEdit(cell));
            }
        }
        wrong = firstWrong(cells, bytes);
    }
    if (wrong) {
        throw CliError("cell " + std::to_string(*wrong) + " becomes '" + screen().txtEdit(*wrong).text() +
                       "', whatever is typed");
    }
    takeOver(cells);
}

std::optional<int> PanelEditing::firstWrong(CellRange cells, std::span<const std::uint8_t> bytes) {
    for (int cell = cells.first; cell <= cells.last; ++cell) {
        if (screen().txtEdit(cell).text() != ByteToHex2(bytes[static_cast<std::size_t>(cell - cells.first)])) {
            return cell;
        }
    }
    return std::nullopt;
}

std::string PanelEditing::bytes() const {
    std::string result = bytes_;
    mendChecksum(result, 0);
    return result;
}

void PanelEditing::focus(Control& control) {
    if (!input::moveFocus(control)) {
        failUnreachable(control);
    }
    refuseBoxes(control);
}

void PanelEditing::showDescriptor(int block) {
    const int cell = detailedBlockBase(block) + report::descriptorMarkCells.last;
    if (screen().txtEdit(cell).text() != ByteToHex2(0)) {
        typeCell(cell, ByteToHex2(0));
        program_.clearBoxes(); // those of a timing without a pixel clock
    }
}

void PanelEditing::goTo(int cell) {
    Control& control = screen().txtEdit(cell);
    if (!input::moveFocus(control)) {
        failUnreachable(control);
    }
    program_.clearBoxes();
}

void PanelEditing::enter(Control& input, std::string_view entry) {
    Workbench& workbench = program_.workbench();
    focus(input);
    input::select(input, 0, static_cast<int>(input.text().size()));
    const std::string keys = static_cast<char>(backspaceKey) + std::string(entry);
    for (const char key : keys) {
        type(input, key);
        refuseBoxes(input);
    }
    if (upperCase(input.text()) != upperCase(entry)) {
        throw CliError("there is no room for '" + std::string(entry) + "': " + input.fullName() + " takes '" +
                       input.text() + "'");
    }
    if (!input::enter(workbench)) {
        failUnreachable(input);
    }
    refuseBoxes(input);
}

void PanelEditing::type(Control& input, char key) {
    Workbench& workbench = program_.workbench();
    if (workbench.focus.current() != &input || !input::typeCharacter(workbench, key)) {
        failUnreachable(input);
    }
}

void PanelEditing::typeCell(int cell, std::string_view digits) {
    Control& control = screen().txtEdit(cell);
    goTo(cell);
    input::select(control, 0, static_cast<int>(control.text().size()));
    for (const char digit : digits) {
        type(control, digit);
    }
}

void PanelEditing::refuseBoxes(const Control& control) const {
    if (!program_.boxes().empty()) {
        throw CliError(control.fullName() + ": " + inOneLine(program_.boxes().distinct().front().text));
    }
}

void PanelEditing::takeOver(CellRange cells) {
    for (int cell = cells.first; cell <= cells.last; ++cell) {
        const std::string& text = screen().txtEdit(cell).text();
        const auto byte = wholeNumber<unsigned char>(text, 16);
        if (!byte) {
            throw CliError("cell " + std::to_string(cell) + " became no byte: '" + text + "'");
        }
        bytes_[static_cast<std::size_t>(cell)] = static_cast<char>(*byte);
    }
}

} // namespace wb::cli
