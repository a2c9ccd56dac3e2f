# What every target of the project is compiled with.
add_library(workbench_warnings INTERFACE)
target_compile_options(workbench_warnings INTERFACE
    -Wall
    -Wextra
    -Wpedantic
    -Wshadow
    -Wconversion
    -Wno-sign-conversion
    -Wold-style-cast
    -Wnon-virtual-dtor
    -Woverloaded-virtual)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping copies in plain concatenations of std::string (GCC bug 105651).
    target_compile_options(workbench_warnings INTERFACE -Wno-restrict)
    if(WORKBENCH_SANITIZE)
        # The checks that the sanitizers insert hide initialisations from this warning.
        target_compile_options(workbench_warnings INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()
