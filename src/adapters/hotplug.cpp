#include "adapters/hotplug.h"

#include <libudev.h>

#include <cerrno>
#include <system_error>

#include "platform/linux/event_wait.h"

namespace wb::adapters {

namespace {

using platform::linux_system::EventWait;

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

struct Unref {
    void operator()(udev* context) const { udev_unref(context); }
    void operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }
    void operator()(udev_device* device) const { udev_device_unref(device); }
};

class UdevHotplug : public Hotplug {
public:
    UdevHotplug() : context_(udev_new()) {
        if (context_ == nullptr) {
            fail("udev");
        }
        // The events of the kernel itself come also where no udev service runs.
        monitor_.reset(udev_monitor_new_from_netlink(context_.get(), "kernel"));
        if (monitor_ == nullptr ||
            udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), "drm", nullptr) < 0 ||
            udev_monitor_enable_receiving(monitor_.get()) < 0) {
            fail("events of the kernel");
        }
    }

    HotplugEvent next(std::optional<std::chrono::milliseconds> patience) override {
        for (;;) {
            switch (wait_.wait(udev_monitor_get_fd(monitor_.get()), patience)) {
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
            if (std::unique_ptr<udev_device, Unref>(udev_monitor_receive_device(monitor_.get())) != nullptr) {
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
