# tessera_add_host_test(NAME SOURCES ... [LIBRARIES ...])
#   One GoogleTest executable on what the program decides.
function(tessera_add_host_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE tessera_build_options tessera_uninstall tessera_host_test_support
        ${ARG_LIBRARIES} GTest::gmock GTest::gtest_main)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

# tessera_add_windows_test(NAME SOURCES ... [LIBRARIES ...] [QT_TEST] [TIMEOUT seconds])
#   One test executable for Windows; CTest runs it through the cross-compiling emulator.
#   Each CTest entry has its own Wine prefix, so registry, mutexes and pipes never meet.
#   Runs only where the user's settings may be changed: tests/windows/support/settings_guard.h.
#   With QT_TEST the source brings its own main (QTEST_MAIN); otherwise GoogleTest's is used.
function(tessera_add_windows_test name)
    cmake_parse_arguments(ARG "QT_TEST" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE tessera_build_options tessera_windows_test_guard
        ${ARG_LIBRARIES})
    if(ARG_QT_TEST)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
        target_link_libraries(${name} PRIVATE tessera_window tessera_resources Qt5::Test)
    else()
        target_link_libraries(${name} PRIVATE tessera_uninstall
            GTest::gmock GTest::gtest_main)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 180)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "WINEPREFIX=${PROJECT_BINARY_DIR}/prefixes/${name}")
endfunction()
