#include "cea/flag_list.h"

#include "cea/procedure.h"
#include "core/base/text.h"
#include "core/cells.h"

namespace wb::cea {

void decodeFlags(const Procedure& run, int cellIndex, std::span<const ListedFlag> flags, ControlArray& checks,
                 std::string& list) {
    checks.deselect();
    list.clear();
    for (int i = 0; i < static_cast<int>(flags.size()); ++i) {
        run.statement([&] {
            const ListedFlag& flag = flags[static_cast<std::size_t>(i)];
            if (bit(byteAt(run.screen, cellIndex), flag.place)) {
                checks(i).setValue(1);
                list += flag.listed;
            }
        });
    }
}

void writeFlag(const Procedure& run, int cellIndex, BitRange kept, int place, const Control& check) {
    const int others = run.readByte(cellIndex) & maskOf(kept);
    run.write(cellIndex, ByteToHex2(withBit(others, place, check.selected())));
}

} // namespace wb::cea
