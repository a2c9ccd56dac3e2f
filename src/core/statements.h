#pragma once

#include <utility>

#include "core/workbench.h"

namespace wb {

/// How a procedure goes on after one of its statements has failed: the two block screens share code and differ in this.
class Statements {
public:
    enum class OnFailure { LeaveProcedure, NextStatement };

    Statements(Workbench& workbench, OnFailure onFailure) : workbench_(&workbench), onFailure_(onFailure) {}

    /// Runs one statement. With NextStatement a failure is shown and the procedure goes on; otherwise it passes to the
    /// trap.
    template <class Statement>
    void operator()(Statement&& statement) const {
        if (onFailure_ == OnFailure::LeaveProcedure) {
            std::forward<Statement>(statement)();
        } else {
            trapped(*workbench_, std::forward<Statement>(statement));
        }
    }
    /// A statement that reads a value: a local value that could not be read counts as 0 or empty.
    template <class Statement>
    auto read(Statement&& statement) const -> decltype(statement()) {
        if (onFailure_ == OnFailure::LeaveProcedure) {
            return std::forward<Statement>(statement)();
        }
        return trappedOr<decltype(statement())>(*workbench_, {}, std::forward<Statement>(statement));
    }

private:
    Workbench* workbench_;
    OnFailure onFailure_;
};

} // namespace wb
