#include "files/data_file.h"

#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "files/file_content.h"
#include "files/text_file.h"
#include "report/report_lines.h"

namespace wb::files {

namespace {

bool readRows(Workbench& workbench, LineReader reader) {
    bool found = false;
    int nextIndex = 0;
    while (!reader.atEnd()) {
        const std::string line = reader.readLine();
        if (found) {
            ParseHexRowLine(workbench, line, nextIndex);
        }
        // A second marker line has been offered to the parser by now and still costs the two lines that follow it.
        if (upperCase(line).find(dataFileMarker) != std::string::npos) {
            reader.readLine();
            reader.readLine();
            found = true;
        }
    }
    if (!found) {
        workbench.showMessage("This File is not a Valid EDID/DDC File");
    }
    return found;
}

} // namespace

bool ReadEDIDDataFile(Workbench& workbench) {
    return trappedOr(workbench, false, [&] {
        workbench.EDIDCells.create(imageSize);
        try {
            return readRows(workbench, LineReader(workbench.CurrentFileName));
        } catch (const InputError& error) {
            workbench.showMessage(std::string("This File ") + error.what());
            return false;
        }
    });
}

bool readDataFile(Workbench& workbench, std::string_view content) {
    return trappedOr(workbench, false, [&] {
        workbench.EDIDCells.create(imageSize);
        return readRows(workbench, LineReader::ofText(content));
    });
}

void ParseHexRowLine(Workbench& workbench, std::string_view line, int& nextIndex) {
    trapped(workbench, [&] {
        forEachPair(line, [&](const std::string& pair) {
            workbench.EDIDCells(nextIndex) = pair;
            ++nextIndex;
        });
    });
}

std::string dataFileText(const TextArray& reportLines) {
    std::string text;
    for (int i = 0; i < reportLines.size() && reportLines(i) != report::endOfReport; ++i) {
        std::string_view line = reportLines(i);
        if (line.ends_with(crLf)) {
            line.remove_suffix(crLf.size());
        }
        if (!line.empty()) {
            append(text, {line, crLf});
        }
    }
    return text;
}

} // namespace wb::files
