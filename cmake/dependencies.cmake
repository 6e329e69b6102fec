# Third-party code, from Debian's packages (on Windows: from CMAKE_PREFIX_PATH). CMake downloads
# nothing.
find_package(Threads REQUIRED)

# Header-only spdlog and fmt. The cross compiler must not see the rest of /usr/include, so the two
# folders are exposed through links in the build tree.
set(TESSERA_HEADER_ONLY_ROOT "/usr/include" CACHE PATH "Folder that holds spdlog/ and fmt/")
set(header_links "${PROJECT_BINARY_DIR}/header_only")
file(MAKE_DIRECTORY "${header_links}")
foreach(library spdlog fmt)
    if(NOT EXISTS "${TESSERA_HEADER_ONLY_ROOT}/${library}")
        message(FATAL_ERROR "${TESSERA_HEADER_ONLY_ROOT}/${library} is missing: install "
                            "lib${library}-dev, or set TESSERA_HEADER_ONLY_ROOT")
    endif()
    file(CREATE_LINK "${TESSERA_HEADER_ONLY_ROOT}/${library}" "${header_links}/${library}"
         COPY_ON_ERROR SYMBOLIC)
endforeach()
add_library(tessera_spdlog INTERFACE)
target_include_directories(tessera_spdlog SYSTEM INTERFACE "${header_links}")
# The log formats no fractions; without them fmt is 50 KB smaller.
target_compile_definitions(tessera_spdlog INTERFACE SPDLOG_FMT_EXTERNAL FMT_HEADER_ONLY
    FMT_USE_FLOAT=0 FMT_USE_DOUBLE=0 FMT_USE_LONG_DOUBLE=0
    $<$<BOOL:${WIN32}>:SPDLOG_WCHAR_FILENAMES>)
target_link_libraries(tessera_spdlog INTERFACE Threads::Threads)

if(BUILD_TESTING)
    set(TESSERA_GOOGLETEST_ROOT "/usr/src/googletest" CACHE PATH "GoogleTest's source folder")
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(gtest_force_shared_crt OFF CACHE BOOL "" FORCE)
    add_subdirectory("${TESSERA_GOOGLETEST_ROOT}" "${PROJECT_BINARY_DIR}/googletest"
                     EXCLUDE_FROM_ALL SYSTEM)
endif()

if(WIN32)
    find_package(Qt5 5.15.2 REQUIRED COMPONENTS Core Gui Widgets)
    if(BUILD_TESTING)
        find_package(Qt5 5.15.2 REQUIRED COMPONENTS Test)
    endif()
    find_package(Qt5LinguistTools QUIET)
endif()
