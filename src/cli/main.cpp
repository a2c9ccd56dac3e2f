#include <string>
#include <vector>

#include "cli/entry.h"

int main(int argc, char** argv) {
    return wb::cli::runProgram(std::vector<std::string>(argv + 1, argv + argc));
}
