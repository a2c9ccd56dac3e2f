# Applies to all targets: a program is only checked as a whole.
add_compile_definitions($<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(WORKBENCH_SANITIZE)
    set(sanitizers -fsanitize=${WORKBENCH_SANITIZE} -fno-sanitize-recover=all)
    add_compile_options(${sanitizers} -fno-omit-frame-pointer)
    add_link_options(${sanitizers})
endif()
