# Builds for a browser page: WebAssembly by clang and Debian's C library for it. The environment
# says which clang, as web/toolchain.sh finds it.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(SELVANE_WASM_CLANG $ENV{SELVANE_WASM_CLANG} CACHE STRING "Version of the clang to use")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES SELVANE_WASM_CLANG)
set(CMAKE_CXX_COMPILER clang++-${SELVANE_WASM_CLANG})
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_AR ar) # the linker needs no index
set(CMAKE_RANLIB true)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
# Debian's libraries stand under a name of the target that clang calls out of date, and are built
# without exceptions.
set(CMAKE_CXX_FLAGS_INIT "-Wno-deprecated -fno-exceptions")
