# Xcvt::Xcvt: libxcvt of X.Org, which computes timings by the CVT standard. It brings no CMake package of its own.
find_path(XCVT_INCLUDE_DIR libxcvt/libxcvt.h)
find_library(XCVT_LIBRARY xcvt)
mark_as_advanced(XCVT_INCLUDE_DIR XCVT_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Xcvt REQUIRED_VARS XCVT_LIBRARY XCVT_INCLUDE_DIR)

if(Xcvt_FOUND AND NOT TARGET Xcvt::Xcvt)
    add_library(Xcvt::Xcvt UNKNOWN IMPORTED)
    set_target_properties(Xcvt::Xcvt PROPERTIES
        IMPORTED_LOCATION "${XCVT_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${XCVT_INCLUDE_DIR}")
endif()
