# Settings that every target of the tree shares, and the helper that publishes headers.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
# Libraries find each other beside them, programs from bin.
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

add_compile_options(-Wall -Wextra -Wpedantic)
if(UIUTILS_WERROR)
    add_compile_options(-Werror)
endif()
add_compile_definitions(
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS)
# Otherwise a processor of 32 bits lists no folder and finds no file whose numbers in the file system need more.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    add_compile_definitions(_FILE_OFFSET_BITS=64)
endif()

# uiutils_install_headers(<folder below include> <header>...)
#
# Headers lie in rooms in the tree and flat once installed, so an include of a sibling room
# ("document/reporttemplate.h") is changed to a plain one ("reporttemplate.h") during installation.
function(uiutils_install_headers folder)
    set(flat "${CMAKE_CURRENT_BINARY_DIR}/headers")
    foreach(header IN LISTS ARGN)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${header}")
        get_filename_component(header "${header}" ABSOLUTE)
        set_property(GLOBAL APPEND PROPERTY UIUTILS_INSTALLED_HEADERS "${folder}=${header}")
        file(READ "${header}" text)
        string(REGEX REPLACE "#include \"[a-z_0-9/]+/([a-z_0-9]+\\.h)\"" "#include \"\\1\"" text "${text}")
        get_filename_component(name "${header}" NAME)
        file(CONFIGURE OUTPUT "${flat}/${name}" CONTENT "${text}" @ONLY)
        install(FILES "${flat}/${name}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${folder}")
    endforeach()
endfunction()

# uiutils_install_pkgconfig(<name> <library> <description> <required modules>)
#
# Only shared libraries are installed, so what one of them needs for itself is not named.
function(uiutils_install_pkgconfig name library description required)
    # Relative, so that an installed tree may be moved.
    file(RELATIVE_PATH prefix "/p/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/p")
    set(file "${CMAKE_CURRENT_BINARY_DIR}/${name}.pc")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/library.pc.in" "${file}" @ONLY)
    install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endfunction()

# uiutils_install_manual(<program> <short description>)
#
# The manual page is the program's own help; without help2man there is no page.
find_program(UIUTILS_HELP2MAN help2man)
function(uiutils_install_manual program summary)
    if(NOT UIUTILS_HELP2MAN OR CMAKE_CROSSCOMPILING)
        return()
    endif()
    set(page "${CMAKE_CURRENT_BINARY_DIR}/${program}.1")
    add_custom_command(OUTPUT "${page}"
        # The page tells the places of an installed program, whoever builds it and wherever.
        COMMAND "${CMAKE_COMMAND}" -E env LC_ALL=C.UTF-8 "UIUTILS_ROOT=~/.local/state/${program}"
            "KIV_SERVICES=${CMAKE_INSTALL_FULL_DATADIR}/uiutils/services"
            "${UIUTILS_HELP2MAN}" --no-info --section=1 "--name=${summary}" "--output=${page}" "./$<TARGET_FILE_NAME:${program}>"
        # help2man passes the program to a shell unquoted, so its path must not contain a blank.
        WORKING_DIRECTORY "$<TARGET_FILE_DIR:${program}>"
        DEPENDS ${program}
        VERBATIM)
    add_custom_target(${program}_man ALL DEPENDS "${page}")
    install(FILES "${page}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endfunction()

# uiutils_exports(<library> <name>)
#
# Exports the library's interface, and nothing that the compiler makes from the standard library's templates, under the
# version <name>_<major>. A process that loads two major versions keeps them apart by it. The library calls its own
# functions without looking for them by name at the start, as Qt's do; whoever uses them is position independent, which
# Qt demands anyway.
function(uiutils_exports library name)
    set(node "${name}_${PROJECT_VERSION_MAJOR}")
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${library}.map")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/exports.map.in" "${script}" @ONLY)
    target_link_options(${library} PRIVATE "LINKER:--version-script=${script}" "LINKER:-Bsymbolic-functions")
    set_property(TARGET ${library} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()
