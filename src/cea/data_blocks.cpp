#include "cea/data_blocks.h"

#include "cea/digits.h"
#include "cea/header.h"
#include "cea/procedure.h"
#include "core/edid_image.h"

namespace wb::cea {

namespace {

constexpr int extensionStart = 128; ///< place of the extension block in the transfer buffer
constexpr int lastTimingCell = 126;
constexpr int collectionStart = 4;

void readOffset(const Procedure& run) {
    Workbench& wb = run.wb;
    if (run.text(0) == "02") {
        wb.ExtDtdOffsetText = std::to_string(byteAt(run.screen, 2));
        run.screen.lbEDID(5).setCaption(offsetCaption(wb.ExtDtdOffsetText));
        wb.ExtDtdStart = wb.ExtDtdOffsetText == "0" ? int16From(collectionStart) : timingOffset(wb);
    } else {
        wb.ExtDtdStart = int16From(run.text(2) == "00" ? 2 : 3);
        wb.ExtDtdOffsetText = std::to_string(wb.ExtDtdStart);
    }
}

void blank(const Procedure& run, int from, int to) {
    for (int i = from; i <= to; ++i) {
        run.write(i, "00");
    }
}

/// Copies the loaded area to where the new offset has it. The inner run knows no end of the grid, and starts over while
/// there is room behind it.
void copyLoadedArea(const Procedure& run, int offset, int loadedOffset, int lastSource) {
    int i = offset;
    while (i <= lastTimingCell) {
        for (int j = loadedOffset + extensionStart; j <= lastSource; ++j) {
            run.statement([&] { run.cell(i).setText(run.wb.EDIDCells(j)); });
            ++i;
        }
        ++i;
    }
}

void moveTimings(const Procedure& run) {
    const int offset = run.statement.read([&] { return int{timingOffset(run.wb)}; });
    const int loadedOffset = run.wb.CEADtdOffset;
    if (offset > loadedOffset && loadedOffset != 0) {
        blank(run, loadedOffset, offset - 1);
        copyLoadedArea(run, offset, loadedOffset, 254);
    } else if (offset < loadedOffset) {
        copyLoadedArea(run, offset, loadedOffset, 255);
        blank(run, 127 - (loadedOffset - offset), lastTimingCell);
    }
}

/// One walk over the collection. Each cell is tested as if it were a header; only what was found before guards the data
/// of a block.
class Scan {
public:
    explicit Scan(Workbench& workbench) : wb_(workbench) {}

    void look(int i, const std::string& cellText) {
        const std::string tagFound = tagDigits(cellText);
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
    void lookAtVideo(int i, const std::string& cellText) {
        if (!videoFound_) {
            wb_.VideoBlockStart = int16From(i);
            wb_.VideoBlockLength = int16From(dataLength(wb_, cellText));
            videoFound_ = true;
        }
    }
    void lookAtAudio(int i, const std::string& cellText) {
        if (i > location(wb_.VideoBlockStart, wb_.VideoBlockLength) && !audioFound_) {
            wb_.AudioBlockStart = int16From(i);
            audioLength_ = dataLength(wb_, cellText);
            audioFound_ = true;
        }
    }
    void lookAtVendor(int i) {
        if (i > location(wb_.AudioBlockStart, audioLength_) && !vendorFound_) {
            wb_.VendorBlockStart = int16From(i);
            vendorFound_ = true;
        }
    }
    /// Below a vendor block of an earlier walk only, since this one meets the vendor header later.
    void lookAtSpeaker(int i) {
        if (audioFound_ && videoFound_ && i > location(wb_.AudioBlockStart, audioLength_) && !speakerFound_ &&
            i < wb_.VendorBlockStart) {
            wb_.SpeakerBlockStart = int16From(i);
            speakerFound_ = true;
        }
    }

    Workbench& wb_;
    bool videoFound_ = false;
    bool audioFound_ = false;
    bool speakerFound_ = false;
    bool vendorFound_ = false;
    int audioLength_ = 0;
};

void scanCollection(const Procedure& run) {
    Scan scan(run.wb);
    for (int i = collectionStart; i < run.wb.ExtDtdStart; ++i) {
        run.statement([&] { scan.look(i, run.text(i)); });
    }
}

void settleVideoStart(const Procedure& run) {
    run.statement([&] {
        if (timingOffset(run.wb) == collectionStart) {
            run.wb.VideoBlockStart = 0;
        } else if (run.wb.AudioBlockStart == 0 && run.wb.VendorBlockStart == 0 && run.wb.SpeakerBlockStart == 0) {
            run.wb.VideoBlockStart = collectionStart;
        }
    });
}

} // namespace

std::string tagDigits(std::string_view cellText) {
    return leftPart(upperDigits(cellText), 3);
}

int dataLength(Workbench& workbench, std::string_view cellText) {
    return binaryNumber(workbench, rightPart(upperDigits(cellText), 1) + lowerDigits(cellText));
}

void LocateDataBlocks(Workbench& workbench) {
    procedure(workbench, [](const Procedure& run) {
        run.statement([&] { readOffset(run); });
        moveTimings(run);
        scanCollection(run);
        settleVideoStart(run);
        CalcCheckSum(run.wb);
    });
}

} // namespace wb::cea
