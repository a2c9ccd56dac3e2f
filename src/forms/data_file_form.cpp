#include "forms/data_file_form.h"

#include "core/base/digits.h"
#include "core/base/text.h"
#include "files/data_file.h"
#include "forms/lines.h"

namespace wb::forms {

namespace {

bool hasMarker(std::string_view line) {
    return upperCase(line).find(files::dataFileMarker) != std::string::npos;
}

void appendPair(std::string_view pair, DataFileBytes& result) {
    if (!result.refusal.empty()) {
        return;
    }
    const int byte = hexPair(pair);
    if (byte < 0) {
        result.refusal = "cell " + std::to_string(result.bytes.size()) + " is no byte: " + quoted(pair);
        return;
    }
    result.bytes += static_cast<char>(byte);
}

} // namespace

std::optional<DataFileBytes> readDataFile(std::string_view text) {
    std::optional<DataFileBytes> result;
    std::size_t toSkip = 0;
    for (std::size_t place = 0; place < text.size();) {
        const auto [line, next] = lineAt(text, place);
        place = next;
        if (toSkip > 0) {
            --toSkip;
            continue;
        }
        if (result) {
            files::forEachPair(line, [&result](std::string_view pair) { appendPair(pair, *result); });
        }
        if (hasMarker(line)) {
            result = result ? result : DataFileBytes{};
            toSkip = 2;
        }
    }
    return result;
}

} // namespace wb::forms
