#pragma once

#include <new>
#include <stdexcept>
#include <string>

#include "cli/cli_error.h"
#include "cli/output.h"

/// The work on one file of many: what stops it does not stop the others.
namespace wb::cli {

/// Tells that the system gives no more memory, or that more was asked for than there can be.
const CliError& memoryError();

/// Gives what the work gives. Where it lacks memory it is the memoryError(), as it was left: what the work has changed
/// by then is half done.
template <class Work>
auto withinMemory(const Work& work) {
    const CliError& error = memoryError(); // made while there is memory for it
    try {
        return work();
    } catch (const std::bad_alloc&) {
        throw CliError(error);
    } catch (const std::length_error&) {
        throw CliError(error);
    }
}

/// Runs the work about what has that name, mostly a file. A CliError that stops it, and want of memory, is told under
/// the name. Whether nothing stopped it.
template <class Work>
bool attempt(const std::string& name, const Work& work) {
    try {
        withinMemory(work);
        return true;
    } catch (const CliError& error) {
        complain(name, error.what());
        return false;
    }
}

} // namespace wb::cli
