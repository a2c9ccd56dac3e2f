# precompile_headers(TARGET headers...) and reuse_precompiled_headers(TARGET FROM): as CMake's own commands, but only
# with WORKBENCH_PRECOMPILED_HEADERS. Without optimisation that saves half of the time of a build. It is off by default:
# sources that forget an include compile with it.
option(WORKBENCH_PRECOMPILED_HEADERS "Precompile the headers of the standard library, GoogleTest and Qt" OFF)

if(WORKBENCH_PRECOMPILED_HEADERS AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Otherwise what ccache kept would not serve a tree that has been made anew.
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()

# Those that the sources include most.
set(WORKBENCH_STANDARD_HEADERS
    <algorithm>
    <array>
    <charconv>
    <cmath>
    <cstdint>
    <fstream>
    <functional>
    <map>
    <memory>
    <optional>
    <random>
    <span>
    <sstream>
    <stdexcept>
    <string>
    <string_view>
    <unordered_map>
    <utility>
    <vector>)

function(precompile_headers TARGET)
    if(WORKBENCH_PRECOMPILED_HEADERS)
        target_precompile_headers(${TARGET} PRIVATE ${ARGN})
    endif()
endfunction()

function(reuse_precompiled_headers TARGET FROM)
    if(WORKBENCH_PRECOMPILED_HEADERS)
        target_precompile_headers(${TARGET} REUSE_FROM ${FROM})
    endif()
endfunction()
