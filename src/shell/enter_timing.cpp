#include "shell/enter_timing.h"

#include <algorithm>

#include "block0/panel_detailed_timing.h"
#include "core/base/digits.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/input.h"
#include "fields/modeline_timing.h"
#include "report/detailed_timing_layout.h"
#include "shell/cell_typing.h"
#include "shell/go_to_byte.h"

namespace wb::shell {

namespace {

using fields::TimingBytes;

constexpr std::size_t firstSizeCell = 12;
constexpr std::size_t lastSizeCell = 14;

/// What a cell holds; 0 where that is no byte.
std::uint8_t byteIn(const Control& cell) {
    return static_cast<std::uint8_t>(std::max(hexPair(cell.text()), 0));
}

/// The panel of one timing, and what its cells are to hold.
class Entry {
public:
    Entry(Workbench& workbench, BlockScreen& screen, int firstByte, const TimingBytes& wanted)
        : workbench_(workbench), typing_(workbench), screen_(screen), firstByte_(firstByte), wanted_(wanted) {}

    bool run();

private:
    int base() const { return firstByte_ % blockSize; }
    int byteOfCell(int cell) const { return byteIn(screen_.txtEdit(base() + cell)); }
    int wantedOf(int cell) const { return wanted_[static_cast<std::size_t>(cell)]; }
    bool isRight(int cell) const { return screen_.txtEdit(base() + cell).text() == ByteToHex2(wantedOf(cell)); }
    bool allRight() const;

    bool goTo(int cell) { return typing_.goTo(firstByte_ + cell); }
    void enterNumber(int field);
    void enterFlags();
    void clickWhereDifferent(BitRange bits, Control& control);
    void typeCells();

    Workbench& workbench_;
    CellTyping typing_;
    BlockScreen& screen_;
    int firstByte_;
    const TimingBytes& wanted_;
};

bool Entry::allRight() const {
    for (int cell = 0; cell < detailedBlockSize; ++cell) {
        if (!isRight(cell)) {
            return false;
        }
    }
    return true;
}

void Entry::enterNumber(int field) {
    const SplitField& layout = report::timingFields[static_cast<std::size_t>(field)];
    const bool split = layout.upper.cell >= 0;
    const int now = layout.join(split ? byteOfCell(layout.upper.cell) : 0, byteOfCell(layout.lower.cell));
    const int number = layout.join(split ? wantedOf(layout.upper.cell) : 0, wantedOf(layout.lower.cell));
    if (now == number || !goTo(block0::cellOfTimingField(field)) || screen_.CurrentBlockBase != base() ||
        screen_.DT.firstSelected() != field || !input::moveFocus(screen_.DTInput)) {
        return;
    }
    constexpr double stepsOfMegahertz = 100;
    input::select(screen_.DTInput, 0, static_cast<int>(screen_.DTInput.text().size()));
    typing_.type(field == report::PixelClock ? formatNumber(number / stepsOfMegahertz, "0.00")
                                             : std::to_string(number));
    input::enter(workbench_);
}

void Entry::clickWhereDifferent(BitRange range, Control& control) {
    if (bits(byteOfCell(report::timingFlagCell), range) != bits(wantedOf(report::timingFlagCell), range)) {
        input::click(control);
    }
}

void Entry::enterFlags() {
    if (isRight(report::timingFlagCell) || !goTo(report::timingFlagCell) || screen_.CurrentBlockBase != base()) {
        return;
    }
    const int kind = bits(wantedOf(report::timingFlagCell), report::syncKindBits);
    clickWhereDifferent(report::syncKindBits, screen_.DTSync(kind));
    clickWhereDifferent({report::polarityBit, report::polarityBit}, screen_.SyncLine);
    clickWhereDifferent({report::serrateBit, report::serrateBit}, screen_.VSyncLine);
    clickWhereDifferent({report::interlacedBit, report::interlacedBit}, screen_.DT1);
}

/// What a cell is decoded to depends on the others, and some decoders write: one that was right when it was typed may
/// have to be typed again.
void Entry::typeCells() {
    constexpr int most = 3;
    for (int pass = 0; pass < most && !allRight(); ++pass) {
        for (int cell = 0; cell < detailedBlockSize; ++cell) {
            if (!isRight(cell)) {
                typing_.typeCell(firstByte_ + cell, ByteToHex2(wantedOf(cell)));
            }
        }
    }
}

bool Entry::run() {
    for (int field = 0; field < report::timingFieldCount; ++field) {
        enterNumber(field);
    }
    enterFlags();
    typeCells();
    return allRight();
}

/// With what a modeline does not tell, as the cells have it; those without a pixel clock hold no timing.
void keepSizeAndStereo(BlockScreen& screen, int base, TimingBytes& bytes) {
    const auto now = [&](std::size_t cell) { return byteIn(screen.txtEdit(base + static_cast<int>(cell))); };
    if (now(0) == 0 && now(1) == 0) {
        return;
    }
    for (std::size_t cell = firstSizeCell; cell <= lastSizeCell; ++cell) {
        bytes[cell] = now(cell);
    }
    std::uint8_t& flags = bytes[report::timingFlagCell];
    flags = static_cast<std::uint8_t>(report::withStereoCode(flags, report::stereoCode(now(report::timingFlagCell))));
}

/// Whether a detailed timing can begin at the cell that has the focus.
bool beginsBlock(BlockScreen& screen, int base) {
    if (screen.id() == ScreenId::Edid) {
        return cells::detailedBlocks.contains(base) && (base - cells::detailedBlocks.first) % detailedBlockSize == 0;
    }
    return screen.CurrentBlockBase == base && base + detailedBlockSize <= checksumCell &&
           screen.Hints(BlockScreen::timingValuePanel).visible();
}

} // namespace

bool enterTiming(Workbench& workbench, int byte, const fields::Modeline& modeline) {
    TimingBytes wanted = fields::timingBytes(modeline);
    const int base = byte % blockSize;
    if (workbench.ModifyEDIDOn == flagFalse || !goToByte(workbench, byte)) {
        return false;
    }
    auto& screen = static_cast<BlockScreen&>(workbench.focus.current()->screen());
    if (!beginsBlock(screen, base)) {
        return false;
    }
    keepSizeAndStereo(screen, base, wanted);
    bool done = false;
    workbench.runUserAction(Deed::Other, nullptr, [&] {
        done = Entry(workbench, screen, byte, wanted).run();
        goToByte(workbench, byte);
    });
    return done;
}

} // namespace wb::shell
