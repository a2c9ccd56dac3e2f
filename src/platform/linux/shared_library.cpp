#include "platform/linux/shared_library.h"

#include <dlfcn.h>

#include <cerrno>
#include <system_error>

namespace wb::platform::linux_system {

namespace {

[[noreturn]] void fail() {
    throw std::system_error(ELIBACC, std::generic_category(), dlerror());
}

} // namespace

SharedLibrary::SharedLibrary(const char* name) : handle_(dlopen(name, RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) {
        fail();
    }
}

void* SharedLibrary::address(const char* name) const {
    void* const found = dlsym(handle_, name);
    if (found == nullptr) {
        fail();
    }
    return found;
}

} // namespace wb::platform::linux_system
