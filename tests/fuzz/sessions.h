#pragma once

#include "support/program.h"

namespace wb::fuzz {

/// A program as it stands after start-up, one for all attempts, as a batch has it.
inline test::Program& freshProgram() {
    static test::Program program;
    program.workbench.startOver();
    program.boxes.clear();
    program.lines.clear();
    shell::Main(program.workbench);
    return program;
}

} // namespace wb::fuzz
