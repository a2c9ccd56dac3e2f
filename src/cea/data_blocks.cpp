#include "cea/data_blocks.h"

#include "cea/checksum.h"
#include "cea/digits.h"
#include "cea/header.h"
#include "cea/location.h"
#include "cea/procedure.h"
#include "core/base/extension_tags.h"
#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "core/edid_image.h"

namespace wb::cea {

namespace {

constexpr int lastDataCell = checksumCell - 1;

void readOffset(const Procedure& run) {
    Workbench& workbench = run.workbench;
    if (run.text(extensionCells::tag) == ceaTagText) {
        workbench.ExtDtdOffsetText = std::to_string(byteAt(run.screen, extensionCells::timingOffset));
        run.screen.lbEDID(5).setCaption(offsetCaption(workbench.ExtDtdOffsetText));
        workbench.ExtDtdStart =
            workbench.ExtDtdOffsetText == "0" ? int16From(extensionCells::dataBlocks) : timingOffset(workbench);
    } else {
        workbench.ExtDtdStart = int16From(run.text(extensionCells::timingOffset) == "00" ? 2 : 3);
        workbench.ExtDtdOffsetText = std::to_string(workbench.ExtDtdStart);
    }
}

void blank(const Procedure& run, int from, int to) {
    for (int i = from; i <= to; ++i) {
        run.write(i, "00");
    }
}

/// Copies the loaded area, which stands in the second half of the transfer buffer, to where the new offset has it. The
/// inner run knows no end of the grid, and starts over while there is room behind it.
void copyLoadedArea(const Procedure& run, int offset, int loadedOffset, int lastSource) {
    int i = offset;
    while (i <= lastDataCell) {
        for (int j = loadedOffset + blockSize; j <= lastSource; ++j) {
            run.statement([&] { run.cell(i).setText(run.workbench.EDIDCells(j)); });
            ++i;
        }
        ++i;
    }
}

void moveTimings(const Procedure& run) {
    const int offset = run.statement.read([&] { return int{timingOffset(run.workbench)}; });
    const int loadedOffset = run.workbench.CEADtdOffset;
    if (offset > loadedOffset && loadedOffset != 0) {
        blank(run, loadedOffset, offset - 1);
        copyLoadedArea(run, offset, loadedOffset, blockSize + lastDataCell);
    } else if (offset < loadedOffset) {
        copyLoadedArea(run, offset, loadedOffset, blockSize + checksumCell);
        blank(run, checksumCell - (loadedOffset - offset), lastDataCell);
    }
}

/// One walk over the collection. Each cell is tested as if it were a header; only what was found before guards the data
/// of a block.
class Scan {
public:
    explicit Scan(Workbench& workbench) : workbench_(workbench) {}

    void look(int i, std::string_view cellText) {
        const std::string_view tagFound = tagDigits(cellText);
        if (tagFound == tag::video) {
            lookAtVideo(i, cellText);
        } else if (tagFound == tag::audio) {
            lookAtAudio(i, cellText);
        } else if (tagFound == tag::vendor) {
            lookAtVendor(i);
        } else if (tagFound == tag::speaker) {
            lookAtSpeaker(i);
        }
    }

private:
    void lookAtVideo(int i, std::string_view cellText) {
        if (!videoFound_) {
            workbench_.VideoBlockStart = int16From(i);
            workbench_.VideoBlockLength = int16From(dataLength(workbench_, cellText));
            videoFound_ = true;
        }
    }
    void lookAtAudio(int i, std::string_view cellText) {
        if (i > location(workbench_.VideoBlockStart, workbench_.VideoBlockLength) && !audioFound_) {
            workbench_.AudioBlockStart = int16From(i);
            audioLength_ = dataLength(workbench_, cellText);
            audioFound_ = true;
        }
    }
    void lookAtVendor(int i) {
        if (i > location(workbench_.AudioBlockStart, audioLength_) && !vendorFound_) {
            workbench_.VendorBlockStart = int16From(i);
            vendorFound_ = true;
        }
    }
    /// Below a vendor block of an earlier walk only, since this one meets the vendor header later.
    void lookAtSpeaker(int i) {
        if (audioFound_ && videoFound_ && i > location(workbench_.AudioBlockStart, audioLength_) && !speakerFound_ &&
            i < workbench_.VendorBlockStart) {
            workbench_.SpeakerBlockStart = int16From(i);
            speakerFound_ = true;
        }
    }

    Workbench& workbench_;
    bool videoFound_ = false;
    bool audioFound_ = false;
    bool speakerFound_ = false;
    bool vendorFound_ = false;
    int audioLength_ = 0;
};

void scanCollection(const Procedure& run) {
    Scan scan(run.workbench);
    for (int i = extensionCells::dataBlocks; i < run.workbench.ExtDtdStart; ++i) {
        run.statement([&] { scan.look(i, run.text(i)); });
    }
}

void settleVideoStart(const Procedure& run) {
    run.statement([&] {
        if (timingOffset(run.workbench) == extensionCells::dataBlocks) {
            run.workbench.VideoBlockStart = 0;
        } else if (run.workbench.AudioBlockStart == 0 && run.workbench.VendorBlockStart == 0 &&
                   run.workbench.SpeakerBlockStart == 0) {
            run.workbench.VideoBlockStart = extensionCells::dataBlocks;
        }
    });
}

} // namespace

std::string_view tagDigits(std::string_view cellText) {
    return firstDigits(upperDigits(cellText), 3);
}

int dataLength(Workbench& workbench, std::string_view cellText) {
    return binaryNumber(workbench, joined({lastDigits(upperDigits(cellText), 1), lowerDigits(cellText)}));
}

void LocateDataBlocks(Workbench& workbench) {
    procedure(workbench, [](const Procedure& run) {
        run.statement([&] { readOffset(run); });
        moveTimings(run);
        scanCollection(run);
        settleVideoStart(run);
        CalcCheckSum(run.workbench);
    });
}

} // namespace wb::cea
