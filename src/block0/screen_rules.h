#pragma once

#include <string_view>
#include <utility>

#include "core/statements.h"
#include "core/workbench.h"

namespace wb::block0 {

/// What tells the two block screens apart where they share code.
struct BlockScreenRules {
    BlockScreen& (*screen)(Workbench&); ///< the screen; a touch
    int firstUnlockedCell;              ///< cells below it keep their lock when editing is switched on
    std::string_view lengthMessage;     ///< told when a cell is left with more than two characters
    void (*recalculateChecksum)(Workbench&);
    void (*convertDetailedTiming)(Workbench&);
    Statements::OnFailure onFailure;
};

/// Runs `body(screen, run)` as a procedure of that screen. Statements given to `run` are single ones: where the screen
/// goes on with the next statement, each shows its own failure.
template <class Body>
void procedure(const BlockScreenRules& rules, Workbench& workbench, Body&& body) {
    trapped(workbench,
            [&] { std::forward<Body>(body)(rules.screen(workbench), Statements(workbench, rules.onFailure)); });
}

} // namespace wb::block0
