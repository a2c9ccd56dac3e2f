#include "cli/attempt.h"

namespace wb::cli {

const CliError& memoryError() {
    static const CliError error("not enough memory");
    return error;
}

} // namespace wb::cli
