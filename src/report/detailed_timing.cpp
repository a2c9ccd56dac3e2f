#include "report/detailed_timing.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/edid_image.h"
#include "report/detailed_timing_layout.h"
#include "report/detailed_timing_report.h"
#include "report/monitor_descriptor.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

struct FieldWords {
    std::string_view words;
    std::string_view unit;
};

/// By TimingField.
constexpr std::array<FieldWords, timingFieldCount> fieldWords = {{
    {"Pixel Clock", " MHz"},
    {"Active Time", " pixels"},
    {"Blanking Time", " pixels"},
    {"Active Time", " lines"},
    {"Blanking Time", " lines"},
    {"Sync Offset", " pixels"},
    {"Sync Pulse Width", " pixels"},
    {"Sync Offset", " lines"},
    {"Sync Pulse Width", " lines"},
    {"Border", " pixels"},
    {"Border", " lines"},
    {"Image Size", " mm"},
    {"Image Size", " mm"},
}};

constexpr std::string_view normalDisplay = "Normal Display - No Stereo";
constexpr std::string_view stereoDisplay = "Stereo";

constexpr int lastStereo = noStereoOption - 1;

constexpr double pixelClockUnits = 100; ///< of the clock field, in a megahertz

struct SyncWords {
    std::string_view line;
    std::string_view vertical; ///< empty: the caption keeps its text
    int serrate;
};

constexpr int separateSync = 3;

constexpr auto analogSync = std::to_array<SyncWords>({
    {"Sync On Green", "", 0},
    {"Sync on RGB", "", 0},
    {"Sync On Green", "", 1},
    {"Sync on RGB", "", 1},
});

/// By kind of the sync, then by its two bits. Tables of the flags: VESA E-EDID Standard, Release A, section 3.10.2.
constexpr auto syncWords = std::to_array<std::array<SyncWords, 4>>({
    analogSync,
    analogSync,
    {{
        {"Composite Polarity (-)", "", 0},
        {"Composite Polarity (+)", "", 0},
        {"Composite Polarity (-)", "", 1},
        {"Composite Polarity (+)", "", 1},
    }},
    {{
        {"Horizontal Polarity (-)", "Vertical Polarity (-)", 0},
        {"Horizontal Polarity (+)", "Vertical Polarity (-)", 0},
        {"Horizontal Polarity (-)", "Vertical Polarity (+)", 0},
        {"Horizontal Polarity (+)", "Vertical Polarity (+)", 0},
    }},
});

/// What the report puts before the caption of a composite sync, by kind, without and with serration.
constexpr auto compositeWords = std::to_array<std::array<std::string_view, 2>>({
    {"Analog Composite ", "Analog Composite (Serrate) "},
    {"Bipolar Analog Composite ", "Bipolar Analog Composite (Serrate) "},
    {"Digital Composite ", "Digital Composite (Serrate) "},
});

/// One run over one block. Every member function is one step of it.
class TimingDecoder {
public:
    TimingDecoder(BlockScreen& screen, const DetailedTimingRules& rules)
        : workbench_(screen.workbench()),
          screen_(screen),
          rules_(rules),
          statement_(workbench_, rules.onFailure),
          base_(screen.CurrentBlockBase),
          number_(screen.CurrentBlockNumber) {}

    void run() {
        if (isDescriptor()) {
            rules_.convertDescriptor(workbench_);
            return;
        }
        begin();
        if (rules_.titleTellsScan) {
            statement_([&] { convertInterlace(); });
        }
        for (int i = 0; i < timingFieldCount; ++i) {
            statement_([&] { convertField(i); });
        }
        if (!rules_.titleTellsScan) {
            statement_([&] { convertInterlace(); });
        }
        statement_([&] { convertStereo(); });
        statement_([&] { convertSync(); });
        statement_([&] { convertFrequencies(); });
        statement_([&] { writeReport(); });
        finish();
    }

private:
    int cellValue(int offset) { return byteAt(screen_, base_ + offset); }
    std::string& reportText() { return (workbench_.*rules_.texts)(number_); }

    bool isDescriptor() {
        const bool marked = statement_.read([&] { return hasDescriptorMark(screen_, base_); });
        return marked || (rules_.obeysDescriptorFlag && screen_.CurrentBlockIsDescriptor != flagFalse);
    }

    void begin() {
        statement_([&] { reportText().clear(); });
        // Raised where the slot has no text, too: the options set below would decode the block again, without an end.
        screen_.InFocusDispatch = flagTrue;
        if (rules_.emptiedTexts != nullptr) {
            statement_([&] { (workbench_.*rules_.emptiedTexts)(number_).clear(); });
        }
    }

    int fieldValue(const SplitField& field) {
        const int upper = field.upper.range.width() == 0 ? 0 : cellValue(field.upper.cell);
        return field.join(upper, cellValue(field.lower.cell));
    }

    void convertField(int i) {
        const int value = fieldValue(timingFields[static_cast<std::size_t>(i)]);
        const FieldWords& field = fieldWords[static_cast<std::size_t>(i)];
        TimingFieldText& text = texts_.fields[static_cast<std::size_t>(i)];
        text.words = field.words;
        text.number = i == PixelClock ? formatNumber(value / pixelClockUnits, "0.00") : std::to_string(value);
        text.unit = field.unit;
        screen_.DT(i).setCaption({text.words, " - ", text.number, text.unit});
        keep(i, value, text.number);
    }

    void keep(int i, int value, const std::string& number) {
        switch (i) {
            case PixelClock:
                pixelMHz_ = value / pixelClockUnits; // what the number reads as, which tells two decimals
                break;
            case HActive:
                hTotal_ = value;
                texts_.width = number;
                // Seen only if the run fails before the report is complete.
                reportText() += "Horizontal:\r\n\r\n";
                break;
            case HBlanking:
                hTotal_ += value;
                break;
            case VActive:
                vTotal_ = value;
                texts_.height = texts_.scan == "i" ? plainDecimal(2 * value) : number;
                break;
            case VBlanking:
                vTotal_ += value;
                break;
            default:
                break;
        }
    }

    void convertInterlace() {
        flags_ = cellValue(timingFlagCell);
        const bool interlaced = bit(flags_, interlacedBit);
        screen_.DT1.setValue(interlaced ? 1 : 0);
        texts_.refresh = interlaced ? "Refreshed Mode: Interlaced" : "Refreshed Mode: Non-Interlaced";
        if (rules_.titleTellsScan) {
            texts_.scan = interlaced ? "i" : "p";
        }
    }

    void showNormalDisplay() {
        screen_.frmStereo.setCaption(normalDisplay);
        texts_.stereo = normalDisplay;
    }

    void convertStereo() {
        screen_.DTStereo.deselect(lastStereo);
        screen_.frmStereo.setCaption(stereoDisplay);
        texts_.stereo = stereoDisplay;
        if (rules_.testsStereoDigit) {
            const std::string& cell = screen_.txtEdit(base_ + timingFlagCell).text();
            const std::string_view digits = cell.empty() ? std::string_view() : binaryDigitsOf(cell.front());
            if (!digits.empty() && digits.substr(1, 2) == "00") {
                showNormalDisplay();
            }
        }
        const auto code = std::find(stereoCodes.begin(), stereoCodes.end(), stereoCode(flags_));
        if (code == stereoCodes.end()) {
            return;
        }
        const int option = static_cast<int>(code - stereoCodes.begin());
        screen_.DTStereo(option).setValue(1);
        if (option == noStereoOption) {
            showNormalDisplay();
        }
    }

    void convertSync() {
        screen_.DTSync.deselect();
        const int kind = bits(flags_, syncKindBits);
        screen_.DTSync(kind).setValue(1);
        screen_.VSyncLine.setVisible(false);
        screen_.SyncSerrate.setVisible(true);
        const int detail = bits(flags_, syncDetailBits);
        const SyncWords& words = syncWords[static_cast<std::size_t>(kind)][static_cast<std::size_t>(detail)];
        screen_.SyncLine.setCaption(words.line);
        if (!words.vertical.empty()) {
            screen_.VSyncLine.setCaption(words.vertical);
        }
        // A change of the check decodes the block inside this run, so the words below come from the controls.
        screen_.SyncSerrate.setValue(words.serrate);
        if (kind == separateSync) {
            join(texts_.sync, {"Digital Separate, ", screen_.SyncLine.caption(), " ", screen_.VSyncLine.caption()});
            screen_.VSyncLine.setVisible(true);
            screen_.SyncSerrate.setValue(0);
            screen_.SyncSerrate.setVisible(false);
        } else {
            const std::size_t serrated = screen_.SyncSerrate.value() == 1 ? 1 : 0;
            join(texts_.sync, {compositeWords[static_cast<std::size_t>(kind)][serrated], screen_.SyncLine.caption()});
        }
    }

    /// The borders do not enter, nor does the interlace bit: the rate is that of the frame formula in any case.
    void convertFrequencies() {
        const double period = pixelMHz_ > 0 ? 1 / pixelMHz_ : pixelMHz_;
        double lineTime = hTotal_ * period;
        if (lineTime == 0) {
            lineTime = 1;
        }
        if (vTotal_ == 0) {
            vTotal_ = 1;
        }
        TimingFieldText horizontal = {"Frequency", formatNumber(1000 / lineTime, "0.00"), " KHz"};
        TimingFieldText vertical = {"Frequency", formatNumber(1 / (vTotal_ * lineTime) * 1000000, "0.00"), " Hz"};
        screen_.Freq(0).setCaption({"Horizontal - ", horizontal.number, horizontal.unit});
        screen_.Freq(1).setCaption({"Vertical - ", vertical.number, vertical.unit});
        texts_.horizontalRate = std::move(horizontal);
        texts_.verticalRate = std::move(vertical);
    }

    void writeReport() { putTimingReport(reportText(), texts_); }

    void finish() {
        screen_.InFocusDispatch = flagFalse;
        statement_([&] { rules_.recalculateChecksum(workbench_); });
        statement_([&] {
            if (screen_.DTInput.visible() && seeks(workbench_)) {
                workbench_.focus.moveTo(screen_.DTInput);
            }
        });
    }

    Workbench& workbench_;
    BlockScreen& screen_;
    const DetailedTimingRules& rules_;
    Statements statement_;
    const int base_;
    const int number_;

    int flags_ = 0;
    double pixelMHz_ = 0;
    double hTotal_ = 0; ///< pixels of a line
    double vTotal_ = 0; ///< lines of a frame
    TimingTexts texts_;
};

constexpr DetailedTimingRules block0Rules = {
    .onFailure = Statements::OnFailure::LeaveProcedure,
    .texts = &SharedVariables::DetailedBlockText,
    .emptiedTexts = nullptr,
    .convertDescriptor = ConvertDetailedTiminga,
    .recalculateChecksum = RecalcBlock0Checksum,
    .obeysDescriptorFlag = true,
    .titleTellsScan = false,
    .testsStereoDigit = false,
};

} // namespace

void decodeDetailedTiming(BlockScreen& screen, const DetailedTimingRules& rules) {
    trapped(screen.workbench(), [&] { TimingDecoder(screen, rules).run(); });
}

void ConvertDetailedTiming(Workbench& workbench) {
    decodeDetailedTiming(workbench.frmEDID(), block0Rules);
}

} // namespace wb::report
