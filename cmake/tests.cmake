# The functions that add tests. A CTest entry is called <host|windows|e2e|package>_<subject>.
# COST, roughly the seconds that an entry takes, makes CTest start the longest entries first. For
# entries without it CTest uses the times of earlier runs.

# Another Python in PATH does not have the modules that come as Debian's packages.
if(CMAKE_HOST_UNIX)
    set(Python3_EXECUTABLE "/usr/bin/python3")
endif()

# tessera_add_host_test(NAME SOURCES ... [LIBRARIES ...])
#   One GoogleTest executable for this machine, and its entry.
function(tessera_add_host_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE tessera_build_options tessera_uninstall tessera_host_test_support
        ${ARG_LIBRARIES} GTest::gmock GTest::gtest_main)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

# Entries with a screen run on one processor each (tools/wine/with-display), except these:
# tessera_use_all_processors(NAME...)
#   For entries whose subject is what processes or threads do to each other.
set(one_processor "WINE_RUN_PROCESSORS=1")
function(tessera_use_all_processors)
    foreach(name ${ARGN})
        set_property(TEST ${name} APPEND PROPERTY
            ENVIRONMENT_MODIFICATION "WINE_RUN_PROCESSORS=unset:")
    endforeach()
endfunction()

# tessera_add_windows_entry(NAME COMMAND program arguments... [ENVIRONMENT variable=value...]
#                           [TIMEOUT seconds] [COST seconds])
#   One CTest entry for a Windows test program, with its own Wine prefix, so that entries share no
#   registry, mutexes or pipes, and with a private screen even on a developer's desktop, since they
#   take the focus. CTest runs it through the cross-compiling emulator. An entry without ENVIRONMENT
#   also goes into the kit for a real Windows (tools/windows_kit).
function(tessera_add_windows_entry name)
    cmake_parse_arguments(ARG "" "TIMEOUT;COST" "COMMAND;ENVIRONMENT" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    add_test(NAME ${name} COMMAND ${ARG_COMMAND})
    # The kit's runner sets no variables.
    if(NOT ARG_ENVIRONMENT)
        list(POP_FRONT ARG_COMMAND program)
        list(JOIN ARG_COMMAND " " arguments)
        set_property(GLOBAL APPEND PROPERTY TESSERA_KIT_TESTS
            "${name} ${ARG_TIMEOUT} $<TARGET_FILE_NAME:${program}> ${arguments}")
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "WINEPREFIX=${PROJECT_BINARY_DIR}/prefixes/${name};${one_processor};${ARG_ENVIRONMENT}"
        ENVIRONMENT_MODIFICATION "DISPLAY=unset:")
    if(ARG_COST)
        set_tests_properties(${name} PROPERTIES COST ${ARG_COST})
    endif()
endfunction()

# tessera_add_windows_test(NAME SOURCES ... [LIBRARIES ...] [TIMEOUT seconds] [COST seconds])
#   One GoogleTest program for Windows, and its entry. Like qt_tests it runs only where the user's
#   settings may be changed: tests/windows/support/settings_guard.h.
function(tessera_add_windows_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT;COST" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE tessera_build_options tessera_windows_test_guard
        ${ARG_LIBRARIES} tessera_uninstall GTest::gmock GTest::gtest_main)
    tessera_add_windows_entry(${name} COMMAND ${name}
        TIMEOUT ${ARG_TIMEOUT} COST ${ARG_COST})
endfunction()

# tessera_add_qt_test(NAME CLASS SOURCES ... [LIBRARIES ...] [TIMEOUT seconds] [COST seconds])
#   A test class in qt_tests, registered by its source (TESSERA_QT_TEST), and its entry.
function(tessera_add_qt_test name class)
    cmake_parse_arguments(ARG "" "TIMEOUT;COST" "SOURCES;LIBRARIES" ${ARGN})
    list(TRANSFORM ARG_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    target_sources(qt_tests PRIVATE ${ARG_SOURCES})
    # Without this a build folder that knows the program already does not see the new class.
    set_property(TARGET qt_tests APPEND PROPERTY AUTOGEN_TARGET_DEPENDS ${ARG_SOURCES})
    target_link_libraries(qt_tests PRIVATE ${ARG_LIBRARIES})
    tessera_add_windows_entry(${name} COMMAND qt_tests ${class}
        TIMEOUT ${ARG_TIMEOUT} COST ${ARG_COST})
endfunction()

# tessera_add_python_test(NAME MODULE [DISPLAY] [ENVIRONMENT variable=value...]
#                         [TIMEOUT seconds] [COST seconds])
#   One entry for a Python test module, or a class in it, by its dotted name: tests.e2e.start_test.
#   With DISPLAY it gets a private screen, even on a developer's desktop: such tests move the mouse.
function(tessera_add_python_test name module)
    cmake_parse_arguments(ARG "DISPLAY" "TIMEOUT;COST" "ENVIRONMENT" ${ARGN})
    find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 600)
    endif()
    set(screen "")
    if(ARG_DISPLAY)
        set(screen "${PROJECT_SOURCE_DIR}/tools/wine/with-display")
    endif()
    # Nothing goes on when CTest is ended.
    add_test(NAME ${name}
        COMMAND setpriv --pdeathsig TERM ${screen} "${Python3_EXECUTABLE}" -B -m unittest -v ${module}
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}")
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "TESSERA_BUILD_DIR=${PROJECT_BINARY_DIR};${one_processor};${ARG_ENVIRONMENT}")
    if(ARG_COST)
        set_tests_properties(${name} PROPERTIES COST ${ARG_COST})
    endif()
    if(ARG_DISPLAY)
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT_MODIFICATION "DISPLAY=unset:")
    endif()
endfunction()
