#pragma once

#include "core/statements.h"
#include "core/workbench.h"

/// Detailed timings: 18 bytes of clock, sizes, sync and flags (VESA E-EDID Standard, Release A, section 3.10.2). One
/// decoder serves both block screens.
namespace wb::report {

/// What differs between the detailed timings of the two blocks.
struct DetailedTimingRules {
    /// Whether a failed statement ends the decoder or only itself.
    Statements::OnFailure onFailure;
    /// Where the report text of a timing goes; the element is CurrentBlockNumber.
    TextArray SharedVariables::*texts;
    /// A further array whose element of that index is only made empty, or null.
    TextArray SharedVariables::*emptiedTexts;
    /// Takes over a block whose first three cells read "000000".
    void (*convertDescriptor)(Workbench&);
    void (*recalculateChecksum)(Workbench&);
    /// CurrentBlockIsDescriptor, too, makes a block a descriptor.
    bool obeysDescriptorFlag;
    /// The interlace bit is read before the fields, and the title of the report tells the height of the whole frame and
    /// the letter of the scan: 1920x1080i for two fields of 540 lines.
    bool titleTellsScan;
    /// Flag bits 6 and 5 clear read as a normal display whatever bit 0 says; their digit is looked at first.
    bool testsStereoDigit;
};

/// Decodes the 18 cells from CurrentBlockBase of the screen: fills the panels Hints(9) and Hints(10) and the report
/// text of CurrentBlockNumber. Failures are shown. Where one ends the decoder, the report text stays as far as it was
/// built and InFocusDispatch stays set. A change of SyncSerrate raises its Click, which may decode the block inside
/// this run.
void decodeDetailedTiming(BlockScreen& screen, const DetailedTimingRules& rules);

/// Decodes the block of frmEDID that CurrentBlockBase and CurrentBlockNumber (0 to 3) name. A block that is no timing,
/// or any while CurrentBlockIsDescriptor is set, is decoded as a monitor descriptor.
void ConvertDetailedTiming(Workbench& workbench);

} // namespace wb::report
