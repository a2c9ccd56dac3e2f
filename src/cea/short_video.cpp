#include "cea/short_video.h"

#include <algorithm>
#include <array>

#include "cea/digits.h"
#include "cea/handlers.h"
#include "cea/location.h"
#include "cea/procedure.h"
#include "cea/video_formats.h"
#include "core/base/text.h"

namespace wb::cea {

namespace {

constexpr int formatCount = static_cast<int>(videoFormats.size());
constexpr int codeDigits = 7;

int codeOf(Workbench& workbench, std::string_view digits) {
    return binaryNumber(workbench, lastDigits(digits, codeDigits));
}

bool isNative(std::string_view digits) {
    return firstDigits(digits, 1) == "1";
}

/// Puts the report line; the reserved code 0 goes without the native word.
void putLine(std::string& line, int code, std::string_view native) {
    const std::string_view format = videoFormats[static_cast<std::size_t>(code)].report;
    join(line, {format, "   ", code != 0 ? native : std::string_view(), crLf});
}

void decodeDescriptor(const Procedure& run, int i) {
    const std::string digits = HexToBinaryText(run.text(location(run.workbench.VideoBlockStart, i)));
    const std::string shownDigits = HexToBinaryText(run.text(run.workbench.ShortVideoCell));
    const int code = codeOf(run.workbench, digits);
    const int shownCode = codeOf(run.workbench, shownDigits);
    run.screen.NativeChkBox.setValue(isNative(digits) ? 1 : 0);
    run.workbench.ShortVideoNativeText(i) = isNative(digits) ? "Native" : "";
    run.screen.NativeChkBox.setValue(isNative(shownDigits) ? 1 : 0);
    if (code < formatCount) {
        run.screen.VideoBlkCBox.setValue(code);
        putLine(run.workbench.ShortVideoText(i), code, run.workbench.ShortVideoNativeText(i));
    }
    if (shownCode < formatCount) {
        run.screen.VideoBlkCBox.setValue(shownCode);
    }
}

/// Puts one of the two fields of the descriptor in focus in front of or behind the kept other one.
void writeDescriptor(const Procedure& run, const std::string& digits) {
    run.write(run.workbench.ShortVideoCell, ByteToHex2(binaryNumber(run.workbench, digits)));
}

constexpr std::array<std::string_view, videoFormats.size()> videoFormatRows = [] {
    std::array<std::string_view, videoFormats.size()> rows{};
    std::transform(videoFormats.begin(), videoFormats.end(), rows.begin(),
                   [](const VideoFormat& format) { return format.listRow(); });
    return rows;
}();

} // namespace

void fillVideoFormats(FrmCeaExt& screen) {
    screen.VideoBlkCBox.setRows(videoFormatRows);
}

void BuildShortVideo(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const int count = run.workbench.VideoBlockLength;
        run.workbench.ShortVideoText.create(count + 1);
        run.workbench.ShortVideoNativeText.create(count + 1);
        for (int i = 1; i <= count; ++i) {
            run.statement([&] { decodeDescriptor(run, i); });
        }
    });
}

void VideoBlkCBox_Click(Workbench& workbench, int /*index*/) {
    panelHandler(workbench, [](const Procedure& run) {
        const Control& list = run.screen.VideoBlkCBox;
        // The list is searched one row past its end, which reads as empty.
        const int row = list.text().empty() ? formatCount : shownRow(list);
        const std::string native = leftPart(HexToBinaryText(run.readText(run.workbench.ShortVideoCell)), 1);
        writeDescriptor(run, native + (row < 0 ? "" : binaryDigits(row, codeDigits)));
    });
}

void NativeChkBox_Click(Workbench& workbench, int /*index*/) {
    panelHandler(workbench, [](const Procedure& run) {
        const std::string code = rightPart(HexToBinaryText(run.readText(run.workbench.ShortVideoCell)), codeDigits);
        writeDescriptor(run, (run.screen.NativeChkBox.selected() ? "1" : "0") + code);
    });
}

} // namespace wb::cea
