# uiutils_add_services(<target> [FILES <file>...] [FOLDER <folder>...] [IMPORT_NAME <name>] [OUTPUT <folder>]
#                      [DESTINATION <folder>] [CHECK] [PAGES <page>...])
#
# Makes a QML module of every service that the service files describe, and builds the modules into the target, so that
# its pages import them wherever it runs:
#
#     import Instrument.Optical 1.0
#
# FILES, FOLDER: the service files, and folders of which every *.service.json is one. The modules are made again when one
#     of them has changed, and when a file comes or goes. A file that cannot be used ends the build.
# IMPORT_NAME: begins the names of the modules; "Instrument" by default.
# OUTPUT: the import path for editors and qmllint; <target>_imports in the build folder by default. It becomes the
#     target's property UIUTILS_IMPORT_PATH, and is added to the variable QML_IMPORT_PATH of the cache, which Qt Creator
#     reads.
# DESTINATION: an import path in which the modules are installed as files too, for other programs.
# CHECK, PAGES: what uiutils-check says of the service files, and of these pages over them, stands in the output of the
#     build; an error ends it.
#
# Of a static library, pages find the modules after Q_INIT_RESOURCE(<target>_services), with "_" in the place of every
# character that C does not allow in names.
function(uiutils_add_services target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "CHECK" "IMPORT_NAME;OUTPUT;DESTINATION" "FILES;FOLDER;PAGES")
    if(NOT TARGET "${target}")
        message(FATAL_ERROR "uiutils_add_services: There is no target \"${target}\". Add it first.")
    endif()
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "uiutils_add_services(${target}): Unknown argument \"${arg_UNPARSED_ARGUMENTS}\".")
    endif()
    uiutils_service_files(files "${target}" "${arg_FILES}" "${arg_FOLDER}")
    uiutils_tool(program uiutils-describe UIUTILS_DESCRIBE)
    if(NOT arg_IMPORT_NAME)
        set(arg_IMPORT_NAME Instrument)
    endif()
    if(NOT arg_OUTPUT)
        set(arg_OUTPUT "${target}_imports")
    endif()
    get_filename_component(output "${arg_OUTPUT}" ABSOLUTE BASE_DIR "${CMAKE_CURRENT_BINARY_DIR}")
    string(REPLACE "." "/" modules "${output}/${arg_IMPORT_NAME}")

    string(MAKE_C_IDENTIFIER "${target}_services" name)
    set(collection "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/qrc_${name}.cpp")
    list(TRANSFORM files PREPEND "--services=" OUTPUT_VARIABLE options)
    # Its words about a file are better than those of whoever cannot use the file, so it comes first.
    set(check_files "")
    set(check_pages "")
    set(checker "")
    if(arg_CHECK OR arg_PAGES)
        uiutils_tool(checker uiutils-check UIUTILS_CHECK)
        set(check_files COMMAND "${checker}" ${files})
    endif()
    set(pages "")
    foreach(page IN LISTS arg_PAGES)
        get_filename_component(page "${page}" ABSOLUTE)
        list(APPEND pages "${page}")
    endforeach()
    if(pages)
        # Warnings about service files come with those about pages.
        list(INSERT check_files 2 --quiet)
        set(check_pages COMMAND "${checker}" "--import=${output}" ${files} ${pages})
    endif()
    add_custom_command(OUTPUT "${source}" BYPRODUCTS "${collection}"
        ${check_files}
        COMMAND "${program}" ${options} "--output=${output}" "--import-name=${arg_IMPORT_NAME}" "--resource=${collection}"
        COMMAND "${CMAKE_COMMAND}" "-DCOLLECTION=${collection}" -P "${CMAKE_CURRENT_FUNCTION_LIST_FILE}"
        ${check_pages}
        COMMAND Qt5::rcc --name "${name}" --output "${source}" "${collection}"
        DEPENDS ${files} ${pages} "${program}" ${checker}
        COMMENT "Describing the services of ${target}"
        VERBATIM)
    set_source_files_properties("${source}" PROPERTIES SKIP_AUTOGEN ON)
    target_sources("${target}" PRIVATE "${source}")

    set_property(TARGET "${target}" PROPERTY UIUTILS_IMPORT_PATH "${output}")
    list(APPEND QML_IMPORT_PATH "${output}")
    list(REMOVE_DUPLICATES QML_IMPORT_PATH)
    set(QML_IMPORT_PATH "${QML_IMPORT_PATH}" CACHE STRING "Where editors look for QML modules" FORCE)
    if(arg_DESTINATION)
        install(DIRECTORY "${modules}" DESTINATION "${arg_DESTINATION}")
    endif()
endfunction()

# The service files, with complete paths.
function(uiutils_service_files result target files folders)
    set(all "")
    foreach(file IN LISTS files)
        get_filename_component(file "${file}" ABSOLUTE)
        if(NOT EXISTS "${file}")
            message(FATAL_ERROR "uiutils_add_services(${target}): There is no file ${file}.")
        endif()
        list(APPEND all "${file}")
    endforeach()
    foreach(folder IN LISTS folders)
        get_filename_component(folder "${folder}" ABSOLUTE)
        file(GLOB found CONFIGURE_DEPENDS "${folder}/*.service.json")
        if(NOT found)
            message(FATAL_ERROR "uiutils_add_services(${target}): There is no *.service.json in ${folder}.")
        endif()
        list(APPEND all ${found})
    endforeach()
    if(NOT all)
        message(FATAL_ERROR "uiutils_add_services(${target}): Name service files with FILES, or a folder with FOLDER.")
    endif()
    set(${result} "${all}" PARENT_SCOPE)
endfunction()

# The program of that name: that of this build, or an installed one, which runs on the machine that builds.
function(uiutils_tool result name variable)
    if(TARGET ${name} AND NOT CMAKE_CROSSCOMPILING)
        set(${result} ${name} PARENT_SCOPE)
        return()
    endif()
    set(hints "")
    if(NOT CMAKE_CROSSCOMPILING)
        set(hints HINTS "${UiUtils_PREFIX}/bin")
    endif()
    find_program(${variable} ${name} ${hints} DOC "The program ${name} of uiutils")
    if(NOT ${variable})
        message(FATAL_ERROR "uiutils_add_services() needs the program ${name}, and did not find it. Debian has it in the "
            "package uiutils-tools. If it is installed elsewhere, name it with -D${variable}=PATH.")
    endif()
    set(${result} "${${variable}}" PARENT_SCOPE)
endfunction()

# As a script, within a build: a service that is no longer described has no module. Only what an earlier build of the
# same target has made is removed, and only after the services could be described: the folder may hold other modules.
if(CMAKE_SCRIPT_MODE_FILE AND CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    cmake_policy(VERSION 3.25)
    set(made "")
    set(former "")
    file(STRINGS "${COLLECTION}" lines ENCODING UTF-8 REGEX "<file ")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE ".*<file alias=\"[^\"]*\">(.*)</file>.*" "\\1" file "${line}")
        string(REPLACE "&lt;" "<" file "${file}")
        string(REPLACE "&gt;" ">" file "${file}")
        string(REPLACE "&quot;" "\"" file "${file}")
        string(REPLACE "&amp;" "&" file "${file}")
        list(APPEND made "${file}")
    endforeach()
    if(EXISTS "${COLLECTION}.made")
        file(STRINGS "${COLLECTION}.made" former ENCODING UTF-8)
    endif()
    foreach(file IN LISTS former)
        if(NOT file IN_LIST made)
            file(REMOVE "${file}")
        endif()
    endforeach()
    list(JOIN made "\n" text)
    file(WRITE "${COLLECTION}.made" "${text}\n")
endif()
