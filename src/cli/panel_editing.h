#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "cli/program.h"
#include "core/base/image.h"
#include "core/base/image_layout.h"
#include "report/descriptor_layout.h"

namespace wb::cli {

/// Edits block 0 of an image at the screen of the program as a user does, with Modify EDID on. A box that an action
/// brings up, and a control that is out of reach, are a CliError.
class PanelEditing {
public:
    /// Boxes that come up while the image is loaded are told on standard error.
    explicit PanelEditing(const Image& image);
    /// Starts from the block that the command New gives.
    PanelEditing();

    /// Types an entry into the panel of vendor and product, which is shown for the field that begins with that cell,
    /// and takes the cells of the field over.
    void enterIdentity(CellRange field, std::string_view entry);
    /// Types the text of a monitor descriptor with a text, block 0 to 3; an empty one leaves blanks alone.
    void enterDescriptorText(int block, std::string_view text);

    /// Makes a detailed block that is a descriptor, block 0 to 3, one of that family.
    void makeDescriptor(int block, report::DescriptorFamily family);
    /// Makes a detailed block that is a descriptor a dummy, which has no option on the panel: types its tag.
    void makeDummy(int block);
    /// Types bytes into cells, as many as there are, and takes the cells over. Where they do not become what was typed
    /// it is a CliError.
    void typeCells(CellRange cells, std::span<const std::uint8_t> bytes);

    /// The bytes of the image with those of the cells that were taken over, and the check sum of block 0.
    std::string bytes() const;

private:
    void beginToModify();
    FrmEdid& screen() { return program_.workbench().frmEDID(); }
    void focus(Control& control);
    /// Replaces the text of an input box and presses Enter.
    void enter(Control& input, std::string_view entry);
    /// Focus on a cell. Boxes that this brings up tell of what its field held, not of an entry, and are forgotten.
    void goTo(int cell);
    void type(Control& input, char key);
    void typeCell(int cell, std::string_view digits);
    /// The screen takes a descriptor whose reserved third byte is not 0 for a timing, so that it stands as 0 there.
    void showDescriptor(int block);
    /// The first cell that does not hold its byte.
    std::optional<int> firstWrong(CellRange cells, std::span<const std::uint8_t> bytes);
    void refuseBoxes(const Control& control) const;
    void takeOver(CellRange cells);

    Program program_;
    std::string bytes_;
};

} // namespace wb::cli
