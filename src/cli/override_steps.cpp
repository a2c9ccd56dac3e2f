#include "cli/override_steps.h"

#include <array>
#include <string_view>

namespace wb::cli {

namespace {

constexpr std::string_view nameLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._-/";

constexpr std::string_view copyStep =
    R"(Put the image where the kernel looks for it. The option --install does this step and no other.
@COPYING@
)";

constexpr std::string_view unknownAdapter =
    R"(   N is the number of the graphics adapter, mostly 0 or 1: see "ls /sys/class/drm".
)";

/// "@NAME@" stands for a member of the plan.
constexpr std::array<std::string_view, 4> laterSteps = {
    R"(Try it without a reboot. This lasts until the next one, and needs debugfs, which secure boot may lock.
     cat /@FOLDER@/@FILE@ >/sys/kernel/debug/dri/@ADAPTER@/@CONNECTOR@/edid_override
     echo detect >/sys/class/drm/card@ADAPTER@-@CONNECTOR@/status
   To end the trial:
     printf reset >/sys/kernel/debug/dri/@ADAPTER@/@CONNECTOR@/edid_override
     echo detect >/sys/class/drm/card@ADAPTER@-@CONNECTOR@/status
@UNKNOWN_ADAPTER@)",
    R"(Put the file into the initramfs, since the driver of the graphics adapter mostly starts from there.
   Debian, Ubuntu: write these lines to /etc/initramfs-tools/hooks/edid
     #!/bin/sh
     [ "$1" = prereqs ] && exit 0
     mkdir -p "$DESTDIR/@FOLDER@"
     cp /@FOLDER@/@FILE@ "$DESTDIR/@FOLDER@/"
   and run
     chmod +x /etc/initramfs-tools/hooks/edid
     update-initramfs -u
   Fedora: write this line to /etc/dracut.conf.d/edid.conf
     install_items+=" /@FOLDER@/@FILE@ "
   and run
     dracut --force
   Arch: name the file in /etc/mkinitcpio.conf, beside those that stand there
     FILES=(/usr/@FOLDER@/@FILE@)
   and run
     mkinitcpio -P
)",
    R"(Have the kernel load it at each start, by the parameter
     drm.edid_firmware=@CONNECTOR@:edid/@FILE@
   With GRUB add it to GRUB_CMDLINE_LINUX_DEFAULT in /etc/default/grub
     GRUB_CMDLINE_LINUX_DEFAULT="quiet drm.edid_firmware=@CONNECTOR@:edid/@FILE@"
   and run
     update-grub                                  (Debian, Ubuntu)
     grub2-mkconfig -o /boot/grub2/grub.cfg       (Fedora; or, without the file,
     grubby --update-kernel=ALL --args=drm.edid_firmware=@CONNECTOR@:edid/@FILE@)
     grub-mkconfig -o /boot/grub/grub.cfg         (Arch)
   Other boot loaders have the parameters of the kernel in files of their own. Several connectors share one
   parameter, with commas between them.
)",
    R"(Reboot, and see what the kernel took.
     edidwb read --to bin @CONNECTOR@ | cmp - /@FOLDER@/@FILE@
     dmesg | grep -i edid
   To undo it all, take the parameter and the file out again, and make the initramfs anew.
)"};

std::string indented(const std::string& lines) {
    std::string result = "     ";
    for (const char c : lines) {
        result += c;
        if (c == '\n') {
            result += "     ";
        }
    }
    return result;
}

std::string valueOf(std::string_view name, const OverridePlan& plan) {
    if (name == "COPYING") {
        return indented(plan.copying);
    }
    if (name == "UNKNOWN_ADAPTER") {
        return plan.adapter.empty() ? std::string(unknownAdapter) : "";
    }
    if (name == "ADAPTER") {
        return plan.adapter.empty() ? "N" : plan.adapter;
    }
    return name == "FOLDER" ? edidFirmwareFolder : name == "FILE" ? plan.fileName : plan.connector;
}

std::string filled(std::string_view text, const OverridePlan& plan) {
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t begin = text.find('@', i);
        result += text.substr(i, begin - i);
        if (begin == std::string_view::npos) {
            break;
        }
        const std::size_t end = text.find('@', begin + 1);
        result += valueOf(text.substr(begin + 1, end - begin - 1), plan);
        i = end + 1;
    }
    return result;
}

} // namespace

std::string overrideSteps(const OverridePlan& plan) {
    std::string text;
    int number = 0;
    const auto add = [&](std::string_view step) {
        text += text.empty() ? "" : "\n";
        text += std::to_string(++number);
        text += ". ";
        text += filled(step, plan);
    };
    if (!plan.installed) {
        add(copyStep);
    }
    for (const std::string_view step : laterSteps) {
        add(step);
    }
    return text;
}

std::string shellWord(const std::string& name) {
    if (name.empty() || name.find_first_not_of(nameLetters) != std::string::npos) {
        std::string word = name.starts_with('-') ? "'./" : "'";
        for (const char c : name) {
            c == '\'' ? word += "'\\''" : word += c;
        }
        return word + '\'';
    }
    return name.size() > 1 && name.front() == '-' ? "./" + name : name;
}

} // namespace wb::cli
