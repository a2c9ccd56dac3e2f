#include "cli/panel_editing.h"

#include "cli/cli_error.h"
#include "cli/output.h"
#include "cli/rewrite.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "core/input.h"
#include "core/keys.h"
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
    focus(screen().txtEdit(base + cells.first));
    enter(screen().DTaInput, text);
    takeOver({base + cells.first, base + cells.last});
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

void PanelEditing::enter(Control& input, std::string_view entry) {
    Workbench& workbench = program_.workbench();
    focus(input);
    input::select(input, 0, static_cast<int>(input.text().size()));
    const std::string keys = static_cast<char>(backspaceKey) + std::string(entry);
    for (const char key : keys) {
        if (!input::typeCharacter(workbench, key)) {
            failUnreachable(input);
        }
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
