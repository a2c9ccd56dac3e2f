#pragma once

namespace wb::platform::linux_system {

/// A shared library of the system that is loaded at its first use instead of with the program: what few runs need is
/// not paid for by the others. It stays loaded.
class SharedLibrary {
public:
    /// The name under which the loader finds it, such as "libz.so.1". What cannot be had is a std::system_error that
    /// tells why.
    explicit SharedLibrary(const char* name);

    /// A function by its declaration: function<decltype(inflate)>("inflate"). What cannot be had is a std::system_error
    /// that tells why.
    template <class Function>
    Function* function(const char* name) const {
        return reinterpret_cast<Function*>(address(name));
    }

private:
    void* address(const char* name) const;

    void* handle_;
};

} // namespace wb::platform::linux_system
