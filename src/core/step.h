#pragma once

#include <string_view>
#include <utility>

#include "core/workbench.h"

namespace wb {

/// Names what the program is doing while it lives, for who tells of a box that comes up meanwhile. An inner step takes
/// the place of the outer one.
class Step {
public:
    /// A few plain words, such as "decoding block 0", which must outlive the step.
    Step(Workbench& workbench, std::string_view name)
        : workbench_(workbench), outer_(std::exchange(workbench.step, name)) {}
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step() { workbench_.step = outer_; }

private:
    Workbench& workbench_;
    std::string_view outer_;
};

} // namespace wb
