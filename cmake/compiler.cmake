# Programs, tools and tests stand together, so that they are found without looking.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# Programs load at any address, as Debian's do. A module for a browser page has an address space of
# its own.
if(NOT SELVANE_PAGE)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()

# One target carries the settings that every part of the program is compiled with.
add_library(selvane_settings INTERFACE)
target_compile_features(selvane_settings INTERFACE cxx_std_20)
target_compile_options(selvane_settings INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused -Wimplicit-fallthrough
    # gcc 12 sees overlaps in std::string's operator+ that are not there (gcc bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    # The same result on every compiler: no fused multiply-add.
    -ffp-contract=off
    # The same bytes wherever the source tree lies.
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=build)

if(SELVANE_SANITIZE)
    target_compile_options(selvane_settings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(selvane_settings INTERFACE -fsanitize=address,undefined)
elseif(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT WIN32 AND NOT SELVANE_PAGE)
    # What Debian builds its own programs with.
    target_compile_options(selvane_settings INTERFACE
        -fstack-protector-strong -D_FORTIFY_SOURCE=2)
    target_link_options(selvane_settings INTERFACE -Wl,-z,relro,-z,now -Wl,--as-needed)
endif()

if(SELVANE_FUZZ)
    target_compile_options(selvane_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The core's own mistakes are caught by SELVANE_ASSERT, which stays on in release.

# headers_compile_alone(TARGET HEADER...): each header as a source file of its own. The target
# headers_alone has them all; a build with sanitizers leaves them out, as it finds no more there.
add_custom_target(headers_alone)
function(headers_compile_alone target)
    if(NOT BUILD_TESTING)
        return()
    endif()
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
    add_dependencies(headers_alone ${target}_headers)
    if(SELVANE_SANITIZE)
        set_target_properties(${target}_headers PROPERTIES EXCLUDE_FROM_ALL ON)
    endif()
endfunction()
