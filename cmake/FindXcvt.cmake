# Xcvt::Xcvt: the headers of libxcvt of X.Org, which computes timings by the CVT standard. It brings no CMake package of its own.
# The library itself is loaded when it is used.
find_path(XCVT_INCLUDE_DIR libxcvt/libxcvt.h)
mark_as_advanced(XCVT_INCLUDE_DIR)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Xcvt REQUIRED_VARS XCVT_INCLUDE_DIR)

if(Xcvt_FOUND AND NOT TARGET Xcvt::Xcvt)
    add_library(Xcvt::Xcvt INTERFACE IMPORTED)
    target_include_directories(Xcvt::Xcvt INTERFACE "${XCVT_INCLUDE_DIR}")
endif()
