#include "cea/flag_list.h"

namespace wb::cea {

void decodeFlags(const Procedure& run, int cellIndex, std::span<const ListedFlag> flags, ControlArray& checks,
                 std::string& list) {
    checks.deselect();
    list.clear();
    for (int i = 0; i < static_cast<int>(flags.size()); ++i) {
        run.statement([&] {
            const ListedFlag& flag = flags[static_cast<std::size_t>(i)];
            if ((byteAt(run.screen, cellIndex) & flag.bit) != 0) {
                checks(i).setValue(1);
                list += flag.listed;
            }
        });
    }
}

void writeFlag(const Procedure& run, int cellIndex, int kept, int bit, const Control& check) {
    const int others = run.readByte(cellIndex) & kept & ~bit;
    run.write(cellIndex, ByteToHex2(others | (check.selected() ? bit : 0)));
}

} // namespace wb::cea
