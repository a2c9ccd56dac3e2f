#pragma once

#include <cstdint>

#include "core/base/image_layout.h"
#include "core/screen.h"
#include "core/shared_variables.h"

namespace wb {

/// Form-level fields of a block screen.
struct BlockScreenFields {
    Flag InFocusDispatch = flagFalse;
    std::int16_t CurrentBlockBase = 0; ///< first cell of the 18-byte block shown; second cell of a standard timing pair
    std::int16_t CurrentBlockNumber = 0; ///< which of the blocks or slots is shown, from 0
    Flag CurrentBlockIsDescriptor = flagFalse;
};

/// What the screens of the two blocks have in common: the identity texts, the grid of cells, the panels, and among
/// these the panels of a version and of a detailed timing.
class BlockScreen : public Screen, public BlockScreenFields {
public:
    static constexpr int cellCount = blockSize;
    static constexpr int timingValuePanel = 9; ///< of `Hints`
    static constexpr int timingFlagPanel = 10;

    BlockScreen(Workbench& workbench, ScreenId id, std::string_view caption, int panelCount);

    /// How many panels `Hints` has.
    int panelCount() const { return panelCount_; }

    ControlArray txtEdit{*this, "txtEdit", ControlKind::Text, 0, cellCount};
    SingleControl txtBrand{*this, "txtBrand", ControlKind::Text};
    SingleControl txtVersion{*this, "txtVersion", ControlKind::Text};
    SingleControl txtModel{*this, "txtModel", ControlKind::Text};
    SingleControl txtRevision{*this, "txtRevision", ControlKind::Text};
    ControlArray Label1{*this, "Label1", ControlKind::Label, 0, 4};
    ControlArray Label2{*this, "Label2", ControlKind::Label, 0, 23};
    SingleControl DTHelp{*this, "DTHelp", ControlKind::Label, nullptr,
                         "Double Click on the Detailed Timing Frame to Reset the current spec to blank."};

private:
    int panelCount_;

public:
    ControlArray Hints{*this, "Hints", ControlKind::Frame, 0, panelCount_};

    // Hints(2): version and revision.
    SingleControl VerRev{*this, "VerRev", ControlKind::Text, &Hints(2)};

    // Hints(9): the values of a detailed timing.
    ControlArray Freq{*this, "Freq", ControlKind::Frame, 0, 2, &Hints(9)};
    SingleControl ImageSize{*this, "ImageSize", ControlKind::Frame, &Hints(9), "Image Size"};
    ControlArray DT{*this, "DT", ControlKind::Option, 0, 13, &Hints(9)};
    SingleControl DTInput{*this, "DTInput", ControlKind::Text, &Hints(9)};

    // Hints(10): the flags of a detailed timing.
    SingleControl DT1{*this, "DT1", ControlKind::Check, &Hints(10), "Interlaced"};
    SingleControl frmStereo{*this, "frmStereo", ControlKind::Frame, &Hints(10), "Stereo"};
    ControlArray DTStereo{*this, "DTStereo", ControlKind::Option, 0, 7, &frmStereo};
    SingleControl Frame2{*this, "Frame2", ControlKind::Frame, &Hints(10), "Sync"};
    ControlArray DTSync{*this, "DTSync", ControlKind::Option, 0, 4, &Frame2};
    SingleControl SyncSerrate{*this, "SyncSerrate", ControlKind::Check, &Frame2, "Serrate"};
    SingleControl SyncLine{*this, "SyncLine", ControlKind::Label, &Frame2};
    SingleControl VSyncLine{*this, "VSyncLine", ControlKind::Label, &Frame2};
    SingleControl Label7{*this, "Label7", ControlKind::Label, &Frame2};

protected:
    void resetFields() override { static_cast<BlockScreenFields&>(*this) = {}; }
};

} // namespace wb
