#include "shell/paste_bytes.h"

#include <algorithm>
#include <optional>
#include <string>

#include "core/base/digits.h"
#include "core/base/text.h"
#include "shell/cell_typing.h"
#include "shell/go_to_byte.h"

namespace wb::shell {

namespace {

/// The pairs of a text, one after the other.
class Pairs {
public:
    explicit Pairs(std::string_view text) : rest_(text) { passOver(); }

    bool atEnd() const { return rest_.empty(); }
    /// The next pair in upper case; nothing where something else follows.
    std::optional<std::string> next() {
        if (hexPair(rest_.substr(0, 2)) < 0) {
            return std::nullopt;
        }
        std::string pair = upperCase(rest_.substr(0, 2));
        rest_.remove_prefix(2);
        passOver();
        return pair;
    }

private:
    void passOver() {
        constexpr std::string_view between = " \t\r\n,;";
        rest_.remove_prefix(std::min(rest_.find_first_not_of(between), rest_.size()));
        if (hasHexPrefix(rest_)) {
            rest_.remove_prefix(2);
        }
    }

    std::string_view rest_;
};

} // namespace

Pasted pasteBytes(Workbench& workbench, std::string_view text) {
    Pairs pairs(text);
    const std::optional<int> first = focusedByte(workbench);
    if (!first) {
        return {};
    }
    const int end = *first - *first % blockSize + blockSize;
    Pasted pasted;
    workbench.runUserAction(Deed::Paste, nullptr, [&] {
        CellTyping typing(workbench);
        for (int byte = *first; byte < end && !pairs.atEnd(); ++byte) {
            const std::optional<std::string> pair = pairs.next();
            if (!pair || !typing.typeCell(byte, *pair)) {
                return;
            }
            ++pasted.pairs;
        }
        pasted.all = pairs.atEnd() && pasted.pairs > 0;
    });
    return pasted;
}

} // namespace wb::shell
