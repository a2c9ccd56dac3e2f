# Udev::Udev: the headers of libudev of systemd, which hands on the events of the Linux kernel. It brings no CMake package of its
# own. The library itself is loaded when it is used.
find_path(UDEV_INCLUDE_DIR libudev.h)
mark_as_advanced(UDEV_INCLUDE_DIR)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Udev REQUIRED_VARS UDEV_INCLUDE_DIR)

if(Udev_FOUND AND NOT TARGET Udev::Udev)
    add_library(Udev::Udev INTERFACE IMPORTED)
    target_include_directories(Udev::Udev INTERFACE "${UDEV_INCLUDE_DIR}")
endif()
