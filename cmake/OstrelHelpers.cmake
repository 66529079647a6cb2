# ostrel_add_library(<name> [HEADER_ONLY] FOLDER <dir under src> ALIAS <Name>
#                    SOURCES ... [PUBLIC_LIBS ...] [PRIVATE_LIBS ...]
#                    [HEADER_BASE <dir the headers' install paths are relative to>])
#
# One library of the project: shared (hidden visibility, a generated export header
# <FOLDER>/<name>_export.h with the macro OSTREL_<NAME>_EXPORT) or header-only, with the
# alias Ostrel::<Name>, and install rules for the Ostrel CMake package. Every target sees
# headers from src/, so that includes read "Folder/Header.h" everywhere.
#
# SOURCES lists every file of the library, one class a line (Foo.cpp Foo.h Foo_p.h); its headers
# are installed except the private ones (*_p.h, and the Win32 cores' *_win.h). PUBLIC_LIBS are what
# an installed header includes, so a product links them too; everything else is PRIVATE_LIBS.
# A header-only library has only PUBLIC_LIBS.
function(ostrel_add_library name)
    cmake_parse_arguments(ARG "HEADER_ONLY" "FOLDER;ALIAS;HEADER_BASE" "SOURCES;PUBLIC_LIBS;PRIVATE_LIBS" ${ARGN})
    if(NOT ARG_HEADER_BASE)
        set(ARG_HEADER_BASE ${CMAKE_CURRENT_SOURCE_DIR})
    endif()
    set(headers ${ARG_SOURCES})
    list(FILTER headers INCLUDE REGEX "\\.h$")
    list(FILTER headers EXCLUDE REGEX "_(p|win)\\.h$")
    set(target ostrel_${name})
    if(ARG_HEADER_ONLY)
        add_library(${target} INTERFACE)
        target_include_directories(${target} INTERFACE
            $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
            $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/ostrel>)
        target_link_libraries(${target} INTERFACE ${ARG_PUBLIC_LIBS})
        target_compile_features(${target} INTERFACE cxx_std_17)
    else()
        add_library(${target} SHARED ${ARG_SOURCES})
        string(TOUPPER ${name} upper)
        generate_export_header(${target}
            BASE_NAME OSTREL_${upper}
            EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/include/${ARG_FOLDER}/ostrel_${name}_export.h)
        target_include_directories(${target} PUBLIC
            $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
            $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
            $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/ostrel>)
        target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LIBS} PRIVATE ${ARG_PRIVATE_LIBS})
        set_target_properties(${target} PROPERTIES
            OUTPUT_NAME Ostrel${ARG_ALIAS}
            VERSION ${PROJECT_VERSION}
            SOVERSION ${PROJECT_VERSION_MAJOR})
        install(FILES ${PROJECT_BINARY_DIR}/include/${ARG_FOLDER}/ostrel_${name}_export.h
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ostrel/${ARG_FOLDER} COMPONENT development)
    endif()
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${ARG_ALIAS})
    add_library(Ostrel::${ARG_ALIAS} ALIAS ${target})
    # The versioned library goes to the runtime package, the unversioned link that a linker wants to
    # the development package (see cmake/OstrelPackaging.cmake).
    install(TARGETS ${target} EXPORT OstrelTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
    # Installed below include/ostrel/<FOLDER>, keeping their path relative to HEADER_BASE.
    foreach(header ${headers})
        get_filename_component(absolute ${header} ABSOLUTE)
        file(RELATIVE_PATH relative ${ARG_HEADER_BASE} ${absolute})
        get_filename_component(dir ${relative} DIRECTORY)
        install(FILES ${absolute} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ostrel/${ARG_FOLDER}/${dir}
            COMPONENT development)
    endforeach()
endfunction()

# ostrel_add_qtest(<ctest name> SOURCES ... [LIBS ...] [ALLOW_QT_WARNINGS] [ENVIRONMENT ...])
#
# A QtTest executable registered in CTest. The test sets up its own process (offscreen platform,
# software Qt Quick, a private runtime folder: autotests/support/TestEnvironment), so that it runs
# the same started by hand. Any Qt warning that a test did not expect fails it: a test that means
# to provoke Qt warnings says ALLOW_QT_WARNINGS.
function(ostrel_add_qtest name)
    cmake_parse_arguments(ARG "ALLOW_QT_WARNINGS" "" "SOURCES;LIBS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Ostrel::TestSupport ${ARG_LIBS})
    target_compile_definitions(${name} PRIVATE QT_FORCE_ASSERTS)
    if(ARG_ALLOW_QT_WARNINGS)
        target_compile_definitions(${name} PRIVATE OSTREL_QT_WARNINGS_FAIL=0)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    if(ARG_ENVIRONMENT)
        set_tests_properties(${name} PROPERTIES ENVIRONMENT "${ARG_ENVIRONMENT}")
    endif()
endfunction()

# ostrel_sanitizers(<OFF|ON|address|thread>)
#
# Compile and link options of the sanitizer builds for everything defined after the call.
# "address" (or ON, or any other true value) is AddressSanitizer with UndefinedBehaviorSanitizer,
# where any report stops the program; "thread" is ThreadSanitizer, which cannot be combined with
# AddressSanitizer.
function(ostrel_sanitizers kind)
    string(TOLOWER "${kind}" kind)
    if(kind STREQUAL "thread")
        set(sanitizers -fsanitize=thread)
    elseif(kind STREQUAL "address" OR kind)
        set(sanitizers -fsanitize=address,undefined)
        set(extra -fno-sanitize-recover=all)
    else()
        return()
    endif()
    add_compile_options(${sanitizers} ${extra} -fno-omit-frame-pointer)
    add_link_options(${sanitizers})
endfunction()
