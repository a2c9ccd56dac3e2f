#pragma once

#include <string>
#include <string_view>

#include "cli/program.h"
#include "core/base/image.h"
#include "core/base/image_layout.h"

namespace wb::cli {

/// Edits block 0 of an image at the screen of the program as a user does, with Modify EDID on. A box that an action
/// brings up, and a control that is out of reach, are a CliError.
class PanelEditing {
public:
    /// Boxes that come up while the image is loaded are told on standard error.
    explicit PanelEditing(const Image& image);

    /// Types an entry into the panel of vendor and product, which is shown for the field that begins with that cell,
    /// and takes the cells of the field over.
    void enterIdentity(CellRange field, std::string_view entry);
    /// Types the text of a monitor descriptor with a text, block 0 to 3; an empty one leaves blanks alone.
    void enterDescriptorText(int block, std::string_view text);

    /// The bytes of the image with those of the cells that were taken over, and the check sum of block 0.
    std::string bytes() const;

private:
    FrmEdid& screen() { return program_.workbench().frmEDID(); }
    void focus(Control& control);
    /// Replaces the text of an input box and presses Enter.
    void enter(Control& input, std::string_view entry);
    void refuseBoxes(const Control& control) const;
    void takeOver(CellRange cells);

    Program program_;
    std::string bytes_;
};

} // namespace wb::cli
