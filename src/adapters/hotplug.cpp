#include "adapters/hotplug.h"

#include <libudev.h>

#include <cerrno>
#include <system_error>

#include "platform/linux/event_wait.h"
#include "platform/linux/shared_library.h"

namespace wb::adapters {

namespace {

using platform::linux_system::EventWait;
using platform::linux_system::SharedLibrary;

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

/// What is used of libudev.
struct Udev {
    SharedLibrary library{"libudev.so.1"};
    decltype(udev_new)* makeContext = library.function<decltype(udev_new)>("udev_new");
    decltype(udev_unref)* releaseContext = library.function<decltype(udev_unref)>("udev_unref");
    decltype(udev_monitor_new_from_netlink)* makeMonitor =
        library.function<decltype(udev_monitor_new_from_netlink)>("udev_monitor_new_from_netlink");
    decltype(udev_monitor_filter_add_match_subsystem_devtype)* filter =
        library.function<decltype(udev_monitor_filter_add_match_subsystem_devtype)>(
            "udev_monitor_filter_add_match_subsystem_devtype");
    decltype(udev_monitor_enable_receiving)* enableReceiving =
        library.function<decltype(udev_monitor_enable_receiving)>("udev_monitor_enable_receiving");
    decltype(udev_monitor_get_fd)* descriptorOf =
        library.function<decltype(udev_monitor_get_fd)>("udev_monitor_get_fd");
    decltype(udev_monitor_receive_device)* receiveDevice =
        library.function<decltype(udev_monitor_receive_device)>("udev_monitor_receive_device");
    decltype(udev_monitor_unref)* releaseMonitor = library.function<decltype(udev_monitor_unref)>("udev_monitor_unref");
    decltype(udev_device_unref)* releaseDevice = library.function<decltype(udev_device_unref)>("udev_device_unref");
};

const Udev& library() {
    static const Udev loaded;
    return loaded;
}

struct Unref {
    void operator()(udev* context) const { library().releaseContext(context); }
    void operator()(udev_monitor* monitor) const { library().releaseMonitor(monitor); }
    void operator()(udev_device* device) const { library().releaseDevice(device); }
};

class UdevHotplug : public Hotplug {
public:
    UdevHotplug() : context_(library().makeContext()) {
        if (context_ == nullptr) {
            fail("udev");
        }
        // The events of the kernel itself come also where no udev service runs.
        monitor_.reset(library().makeMonitor(context_.get(), "kernel"));
        if (monitor_ == nullptr || library().filter(monitor_.get(), "drm", nullptr) < 0 ||
            library().enableReceiving(monitor_.get()) < 0) {
            fail("events of the kernel");
        }
    }

    HotplugEvent next(std::optional<std::chrono::milliseconds> patience) override {
        for (;;) {
            switch (wait_.wait(library().descriptorOf(monitor_.get()), patience)) {
                case EventWait::Result::Quiet:
                    return HotplugEvent::Quiet;
                case EventWait::Result::Stop:
                    return HotplugEvent::Stop;
                case EventWait::Result::OutputClosed:
                    return HotplugEvent::OutputClosed;
                case EventWait::Result::Ready:
                    break;
            }
            // Events of other parts of the system wake the program and give no device.
            if (std::unique_ptr<udev_device, Unref>(library().receiveDevice(monitor_.get())) != nullptr) {
                return HotplugEvent::Change;
            }
        }
    }

private:
    EventWait wait_;
    std::unique_ptr<udev, Unref> context_;
    std::unique_ptr<udev_monitor, Unref> monitor_;
};

} // namespace

bool canWatchMonitors() {
    return true;
}

std::unique_ptr<Hotplug> watchMonitors() {
    return std::make_unique<UdevHotplug>();
}

} // namespace wb::adapters
