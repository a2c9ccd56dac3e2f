# Udev::Udev: libudev of systemd, which hands on the events of the Linux kernel. It brings no CMake package of its own.
find_path(UDEV_INCLUDE_DIR libudev.h)
find_library(UDEV_LIBRARY udev)
mark_as_advanced(UDEV_INCLUDE_DIR UDEV_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Udev REQUIRED_VARS UDEV_LIBRARY UDEV_INCLUDE_DIR)

if(Udev_FOUND AND NOT TARGET Udev::Udev)
    add_library(Udev::Udev UNKNOWN IMPORTED)
    set_target_properties(Udev::Udev PROPERTIES
        IMPORTED_LOCATION "${UDEV_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${UDEV_INCLUDE_DIR}")
endif()
