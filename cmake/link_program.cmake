# tessera_link_program(TARGET): links a program for users. At its start Windows loads only system
# libraries that every version takes from its own folder ("KnownDLLs"; tests/package verifies this).
# The libraries listed here are loaded on first use, see support/win32/delay_load.cpp. Delayed
# imports need lld; GCC's own linker lacks them.
set(TESSERA_DELAYED_LIBRARIES
    bcrypt comdlg32 crypt32 dwmapi imm32 netapi32 ole32 oleaut32 rpcrt4 shell32 userenv uxtheme
    version winmm ws2_32 wtsapi32)

function(tessera_link_program target)
    if(MSVC)
        # Windows 10 and later: all imports from the system's folder only.
        target_link_options(${target} PRIVATE /DEPENDENTLOADFLAG:0x800)
    endif()
    if(NOT CMAKE_CROSSCOMPILING)
        return()
    endif()
    find_program(TESSERA_LLD NAMES ld.lld-19 REQUIRED)
    target_sources(${target} PRIVATE
        "${PROJECT_SOURCE_DIR}/support/win32/delay_load.cpp"
        "${PROJECT_SOURCE_DIR}/support/win32/uncaught_exception.cpp")
    list(TRANSFORM TESSERA_DELAYED_LIBRARIES PREPEND "-Wl,--delayload=" OUTPUT_VARIABLE delayed)
    list(TRANSFORM delayed APPEND ".dll")
    target_link_options(${target} PRIVATE
        "SHELL:-wrapper \"${PROJECT_SOURCE_DIR}/cmake/link/lld.py\"" -fno-use-linker-plugin
        ${delayed} $<$<CONFIG:Release>:-s>)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS
        "${PROJECT_SOURCE_DIR}/cmake/link/import_library.py"
        "${PROJECT_SOURCE_DIR}/cmake/link/lld.py")
endfunction()
