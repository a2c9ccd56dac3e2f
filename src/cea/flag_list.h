#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/base/bits.h"
#include "core/workbench.h"

/// A byte of flags that stands on a panel as checks and in the report as a list.
namespace wb::cea {

struct Procedure;

/// One flag: its place in the byte, and what it appends to the list, separators included.
struct ListedFlag {
    int place;
    std::string_view listed;
};

/// Sets the checks and makes the list. The cell is read afresh for each flag.
void decodeFlags(const Procedure& run, int cellIndex, std::span<const ListedFlag> flags, ControlArray& checks,
                 std::string& list);

/// Writes the flag of a check into its cell. Of the old byte's other bits only those of `kept` stay.
void writeFlag(const Procedure& run, int cellIndex, BitRange kept, int place, const Control& check);

} // namespace wb::cea
