# One target carries the settings that every part of the house is compiled with.
add_library(selvane_settings INTERFACE)
target_compile_features(selvane_settings INTERFACE cxx_std_20)
target_compile_options(selvane_settings INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused -Wimplicit-fallthrough
    # The same result on every compiler: no fused multiply-add.
    -ffp-contract=off)

if(SELVANE_SANITIZE)
    target_compile_options(selvane_settings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(selvane_settings INTERFACE -fsanitize=address,undefined)
endif()

# The core's own mistakes are caught by SELVANE_ASSERT, which stays on in release.

# headers_compile_alone(TARGET HEADER...): each header as a source file of its own.
function(headers_compile_alone target)
    set(units "")
    foreach(header IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER "${header}" name)
        set(unit "${CMAKE_CURRENT_BINARY_DIR}/alone/${name}.cpp")
        set(text "#include \"${header}\"\n#include \"${header}\"\n")
        if(EXISTS "${unit}")
            file(READ "${unit}" old)
        else()
            set(old "")
        endif()
        if(NOT old STREQUAL text)
            file(WRITE "${unit}" "${text}")
        endif()
        list(APPEND units "${unit}")
    endforeach()
    add_library(${target}_headers OBJECT ${units})
    target_link_libraries(${target}_headers PRIVATE ${target} selvane_settings)
endfunction()
