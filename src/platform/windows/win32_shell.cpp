#include "platform/windows/win32_shell.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shellapi.h>

namespace wb::platform::windows {

namespace {

const char* orNull(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

} // namespace

bool Win32Shell::start(const ShellCommand& command) {
    // What is not above it is the code of an error.
    constexpr INT_PTR lastError = 32;
    const HINSTANCE outcome =
        ShellExecuteA(nullptr, orNull(command.verb), command.program.c_str(), orNull(command.arguments),
                      orNull(command.folder), command.hidden ? SW_HIDE : SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(outcome) > lastError;
}

} // namespace wb::platform::windows
