# brisklet_add_layer(<name> [QT] [PUBLIC <libraries>...] [PRIVATE <libraries>...])
#
# Makes the static library brisklet_<name>, in lower case (alias Brisklet::<name>), of all sources
# under the calling folder. A layer sees exactly the layers it links, so an include against the direction of
# the arrows shows in review as a changed line of CMake.
#
# The sources are found by a glob that is checked again at each build: with one library per folder
# a list would only repeat the folder, and it would be the one file that all authors collide on. A
# folder without sources yet makes an interface library, so that its users configure and link.
function(brisklet_add_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 LAYER "QT" "" "PUBLIC;PRIVATE")
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
    brisklet_add_layer_from("${name}" "${sources}" "${headers}" "${LAYER_QT}"
        "${LAYER_PUBLIC}" "${LAYER_PRIVATE}")
endfunction()

# brisklet_unproven_headers(<variable> <headers>...): those that the build does not show to compile
# alone by itself, as it does with each that its own source includes before anything else.
function(brisklet_unproven_headers variable)
    set(unproven)
    foreach(header IN LISTS ARGN)
        string(REGEX REPLACE "\\.h$" ".cpp" source "${header}")
        file(RELATIVE_PATH name "${PROJECT_SOURCE_DIR}/src" "${header}")
        set(first)
        if(EXISTS "${source}")
            file(STRINGS "${source}" first REGEX "^#include" LIMIT_COUNT 1)
        endif()
        if(NOT first STREQUAL "#include \"${name}\"")
            list(APPEND unproven "${header}")
        endif()
    endforeach()
    set(${variable} "${unproven}" PARENT_SCOPE)
endfunction()

# The part of brisklet_add_layer that does not look for files.
#
# The target all_verify_interface_header_sets compiles the headers that need it alone; the preset ci
# builds it.
function(brisklet_add_layer_from name sources headers qt public private)
    string(TOLOWER "brisklet_${name}" target)
    if(NOT sources)
        add_library(${target} INTERFACE)
        target_include_directories(${target} INTERFACE "${PROJECT_SOURCE_DIR}/src")
        target_link_libraries(${target} INTERFACE ${public} ${private})
    else()
        add_library(${target} STATIC ${sources})
        brisklet_unproven_headers(unproven ${headers})
        if(unproven)
            list(REMOVE_ITEM headers ${unproven})
        endif()
        target_sources(${target} PUBLIC
            FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/src" FILES ${headers}
            FILE_SET unproven TYPE HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/src" FILES ${unproven})
        set_target_properties(${target} PROPERTIES
            VERIFY_INTERFACE_HEADER_SETS ON
            INTERFACE_HEADER_SETS_TO_VERIFY unproven)
        target_link_libraries(${target}
            PUBLIC ${public}
            PRIVATE ${private} brisklet_warnings)
        if(qt)
            # The generated sources follow their own rules: ours are for what we wrote.
            set_target_properties(${target} PROPERTIES AUTOMOC ON)
            target_link_libraries(${target} PUBLIC brisklet_qt_definitions)
        endif()
        target_compile_definitions(${target} PRIVATE BRISKLET_VERSION="${PROJECT_VERSION}")
    endif()
    add_library(Brisklet::${name} ALIAS ${target})
endfunction()

# brisklet_add_tool(<name> <folder> <libraries>...): an executable of the sources in the folder;
# left out while there are none.
function(brisklet_add_tool name folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h")
    if(NOT sources)
        return()
    endif()
    add_executable(${name} ${sources} ${headers})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${name} PRIVATE BRISKLET_VERSION="${PROJECT_VERSION}")
    target_link_libraries(${name} PRIVATE ${ARGN} brisklet_qt_definitions brisklet_warnings)
endfunction()
