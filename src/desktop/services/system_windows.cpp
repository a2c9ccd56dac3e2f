#include "desktop/services/system.h"
#include "platform/windows/win32_registry.h"
#include "platform/windows/win32_shell.h"

namespace wb::desktop {

namespace {

class WindowsSystem : public System {
public:
    platform::Registry& registry() override { return registry_; }
    platform::Shell& shell() override { return shell_; }

private:
    platform::windows::Win32Registry registry_;
    platform::windows::Win32Shell shell_;
};

} // namespace

std::unique_ptr<System> System::make() {
    return std::make_unique<WindowsSystem>();
}

} // namespace wb::desktop
