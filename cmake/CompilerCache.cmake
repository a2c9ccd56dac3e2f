# Compiles through ccache where it is installed. The base directory lets several working trees share one cache; the
# sloppiness is what ccache asks for where headers are precompiled.
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(WORKBENCH_CCACHE ccache)
    mark_as_advanced(WORKBENCH_CCACHE)
    if(WORKBENCH_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER
            "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" CCACHE_NOHASHDIR=1
            CCACHE_SLOPPINESS=pch_defines,time_macros "${WORKBENCH_CCACHE}")
    endif()
endif()
