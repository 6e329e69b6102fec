# Compiler and linker options. First those of the whole build, GoogleTest included; then those of our
# own targets, which link tessera_build_options.
set(TESSERA_SANITIZE "" CACHE STRING "Sanitizers for the host build, as for -fsanitize=")
option(TESSERA_WERROR "Treat warnings in our code as errors" ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_C_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

if(MSVC)
    set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
else()
    # The linker drops unused functions and data of static libraries.
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-Wl,--gc-sections)
endif()
if(MINGW)
    # Without timestamps builds are reproducible; tests/package verifies this.
    add_link_options(-static -Wl,--no-insert-timestamp
        -Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat)
endif()
if(TESSERA_SANITIZE)
    add_compile_options(-fsanitize=${TESSERA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${TESSERA_SANITIZE})
endif()

add_library(tessera_build_options INTERFACE)
target_compile_features(tessera_build_options INTERFACE cxx_std_17)
target_include_directories(tessera_build_options INTERFACE "${PROJECT_SOURCE_DIR}")
if(MSVC)
    target_compile_options(tessera_build_options INTERFACE /W4 /permissive- /utf-8
        $<$<BOOL:${TESSERA_WERROR}>:/WX>)
else()
    target_compile_options(tessera_build_options INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wnon-virtual-dtor
        -Woverloaded-virtual -Wold-style-cast -Wcast-qual -Wformat=2 -Wundef
        # Constructor parameters carry their fields' names, so only locals must not shadow.
        $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow>
        $<$<BOOL:${TESSERA_WERROR}>:-Werror>)
endif()
if(WIN32)
    # Windows 7 interfaces and the wide entry points by default.
    target_compile_definitions(tessera_build_options INTERFACE
        UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
endif()
if(MINGW)
    add_library(tessera_stack_guard STATIC "${PROJECT_SOURCE_DIR}/support/win32/stack_guard.cpp")
    target_compile_features(tessera_stack_guard PRIVATE cxx_std_17)
    target_compile_options(tessera_build_options INTERFACE -fstack-protector-strong)
    target_link_libraries(tessera_build_options INTERFACE tessera_stack_guard)
endif()
if(TESSERA_SANITIZE)
    # With sanitizers GCC takes the standard library's own variables for uninitialised; the plain
    # build keeps the warning.
    target_compile_options(tessera_build_options INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

# For code that mostly waits or runs once, where size matters more than speed.
add_library(tessera_small_code INTERFACE)
if(MINGW)
    target_compile_options(tessera_small_code INTERFACE $<$<CONFIG:Release>:-Os>)
endif()
