# Cross-compiles for 64-bit Windows with Debian's mingw-w64, POSIX thread model
# (std::thread and std::mutex need it).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

get_filename_component(TESSERA_SOURCE_ROOT "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)

# The static Qt and libcurl that the set-up built; each folder is named by version and recipe.
foreach(library qt curl)
    execute_process(COMMAND "${TESSERA_SOURCE_ROOT}/tools/setup/${library}.sh" --print-prefix
                    OUTPUT_VARIABLE prefix OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND CMAKE_PREFIX_PATH "${prefix}")
    list(APPEND CMAKE_FIND_ROOT_PATH "${prefix}")
endforeach()
list(APPEND CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# CTest, and whatever else starts a built program, goes through Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${TESSERA_SOURCE_ROOT}/tools/wine-run")
